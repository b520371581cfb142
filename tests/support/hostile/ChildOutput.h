#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a test child prints, and the verbs that print how it was started.
namespace Hostile {

using Arguments = std::vector<std::string>;

/// Writes all of `text`; ends the program when that fails.
void writeAll(int descriptor, std::string_view text);

/// Prints a line on standard output.
void say(const std::string &line);

/// Prints its session, terminal, descriptors, signals, input and folder, a line each.
int describe(const Arguments &arguments);

int printEnvironment(const Arguments &arguments);

/// Prints each argument on its own line.
int printArguments(const Arguments &arguments);

} // namespace Hostile
