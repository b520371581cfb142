#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Loadwick {

/// One week of the token log that other tooling of the user's writes.
struct WeeklyKPILine
{
    std::int64_t medianTokensPerSession;
    std::int64_t tokensPerPR; ///< tokens for each merged pull request
    std::optional<std::int64_t> totalTokens;
    std::optional<std::int64_t> mergedPRs;
    std::string windowStart; ///< this and the next two as the log words them
    std::string windowEnd;
    std::string timestamp; ///< when the line was written

    /// What the figure has more than its target; negative when it has less. Overflow ends the
    /// program, but no line that the reader gives overflows.
    [[nodiscard]] std::int64_t medianDelta() const noexcept;
    [[nodiscard]] std::int64_t tokensPerPRDelta() const noexcept;

    friend bool operator==(const WeeklyKPILine &, const WeeklyKPILine &) = default;
};

} // namespace Loadwick
