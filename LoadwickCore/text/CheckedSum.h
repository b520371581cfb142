#pragma once

#include <cstdint>

namespace Loadwick {

/// `left + right`. A result outside 64 bits ends the program: a token sum never wraps around.
[[nodiscard]] std::int64_t checkedSum(std::int64_t left, std::int64_t right) noexcept;

/// `left - right`, with the same end on overflow.
[[nodiscard]] std::int64_t checkedDifference(std::int64_t left, std::int64_t right) noexcept;

} // namespace Loadwick
