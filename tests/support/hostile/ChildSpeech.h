#pragma once

#include <string>
#include <string_view>

namespace Hostile {

/// Writes all of `text`; ends the program when that fails.
void writeAll(int descriptor, std::string_view text);

/// A line on standard output.
void say(const std::string &line);

} // namespace Hostile
