#pragma once

#include <cstdint>
#include <string>

namespace Loadwick {

/// One instruction file on disk and what it probably costs.
struct InstructionFileEstimate
{
    std::string path; ///< as it was reached, as text: standardized, links not resolved
    std::int64_t byteCount;
    std::int64_t estimatedTokens;

    /// Computes the tokens from the bytes.
    [[nodiscard]] static InstructionFileEstimate fromPath(std::string path, std::int64_t byteCount);

    /// Four bytes to a token, rounded up: the ceiling of `byteCount` x 0.25 in double precision;
    /// 0 for a count below 1.
    [[nodiscard]] static std::int64_t estimatedTokensForByteCount(std::int64_t byteCount) noexcept;

    friend bool operator==(const InstructionFileEstimate &,
                           const InstructionFileEstimate &) = default;
};

} // namespace Loadwick
