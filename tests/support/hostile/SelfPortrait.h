#pragma once

#include <string>
#include <vector>

/// Verbs of a test child that tell how it was started.
namespace Hostile {

using Arguments = std::vector<std::string>;

/// Its session, terminal, descriptors, signals, input and folder, a line each.
int describe(const Arguments &arguments);

int printEnvironment(const Arguments &arguments);

/// A line for each.
int printArguments(const Arguments &arguments);

} // namespace Hostile
