#include "report/InstructionFileEstimate.h"

#include <cmath>
#include <utility>

namespace Loadwick {

InstructionFileEstimate InstructionFileEstimate::fromPath(std::string path, std::int64_t byteCount)
{
    return {.path = std::move(path),
            .byteCount = byteCount,
            .estimatedTokens = estimatedTokensForByteCount(byteCount)};
}

std::int64_t InstructionFileEstimate::estimatedTokensForByteCount(std::int64_t byteCount) noexcept
{
    if (byteCount < 1)
        return 0;
    return static_cast<std::int64_t>(std::ceil(static_cast<double>(byteCount) * 0.25));
}

} // namespace Loadwick
