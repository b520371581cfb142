#pragma once

#include <string_view>

namespace Loadwick {

/// Ends the program: prints `message` and a line feed to standard error, then aborts.
/// For states that only a programming error or an impossible input can reach.
[[noreturn]] void fatalError(std::string_view message) noexcept;

} // namespace Loadwick
