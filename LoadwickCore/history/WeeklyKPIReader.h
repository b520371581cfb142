#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace Loadwick {

/// One week of the token log that another of the user's tools writes.
struct WeeklyKPILine
{
    std::int64_t medianTokensPerSession;
    std::int64_t tokensPerPR; ///< tokens for each merged pull request
    std::optional<std::int64_t> totalTokens;
    std::optional<std::int64_t> mergedPRs;
    std::string windowStart; ///< this and the next two exactly as logged
    std::string windowEnd;
    std::string timestamp; ///< when the line was written

    /// The figure minus its target. Overflow ends the program, but no line that the reader returns
    /// overflows.
    [[nodiscard]] std::int64_t medianDelta() const noexcept;
    [[nodiscard]] std::int64_t tokensPerPRDelta() const noexcept;

    friend bool operator==(const WeeklyKPILine &, const WeeklyKPILine &) = default;
};

} // namespace Loadwick

/// Reads the newest usable line of the weekly token log: JSON Lines, UTF-8, possibly being written
/// at the same time. Whatever cannot be read yields nothing.
namespace Loadwick::WeeklyKPIReader {

inline constexpr std::int64_t medianTokensPerSessionTarget = 27'510'462;
inline constexpr std::int64_t tokensPerPRTarget = 37'681'168;
inline constexpr std::string_view targetsSource =
    "halden-machine-config docs/data/token-kpi-baseline-2026-08-09.json (locked baseline)";

inline constexpr std::size_t maximumBytes = std::size_t{64} << 20;

/// The log's path under `home`, which has no trailing slash.
[[nodiscard]] std::string defaultPath(std::string_view home);

/// The newest usable line of the file; nothing when it is unreadable, not a regular file or not
/// UTF-8. Only the last `byteLimit` bytes of a longer file are read, and those up to the first line
/// feed are skipped. Blocks on the disk: call it off the interface thread.
[[nodiscard]] std::optional<WeeklyKPILine> read(const std::filesystem::path &path,
                                                std::size_t byteLimit = maximumBytes);

/// The last line that is a JSON object with integers under "median_tokens_per_session" and
/// "tokens_per_pr"; the dates in the lines are not compared. Missing strings read "unknown". A byte
/// order mark before a line is skipped.
[[nodiscard]] std::optional<WeeklyKPILine> parseLatest(std::string_view text);

} // namespace Loadwick::WeeklyKPIReader
