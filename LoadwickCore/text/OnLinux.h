#pragma once

#include <optional>
#include <string>

namespace Loadwick {

/// Some fixed texts speak of macOS. `line` says what holds on Linux and goes beneath such a text;
/// nothing on any other system.
[[nodiscard]] inline std::optional<std::string> onLinux(std::string line)
{
#ifdef __linux__
    return line;
#else
    (void)line;
    return std::nullopt;
#endif
}

} // namespace Loadwick
