#pragma once

#include <cstdint>
#include <string_view>

namespace Loadwick {

/// Ends the program: prints `message` and a line feed to standard error, then aborts.
/// For states that only a programming error or an impossible input can reach.
[[noreturn]] void fatalError(std::string_view message) noexcept;

/// `left + right`. A result outside 64 bits ends the program: a token sum never wraps around.
[[nodiscard]] std::int64_t checkedSum(std::int64_t left, std::int64_t right) noexcept;

/// `left - right`, just as fatal on overflow.
[[nodiscard]] std::int64_t checkedDifference(std::int64_t left, std::int64_t right) noexcept;

} // namespace Loadwick
