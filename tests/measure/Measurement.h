#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Loadwick {

/// The figures that `loadwick-measure` prints for an operation, by name ("outcome", "files-opened",
/// …). Ends the test program when the tool fails.
[[nodiscard]] std::map<std::string, std::int64_t> measured(const std::vector<std::string> &words);

/// The instructions of the tool for an operation, its own start included, as callgrind counts them:
/// nearly the same on every run, even on a busy machine.
[[nodiscard]] std::int64_t instructionsOf(const std::vector<std::string> &words);

} // namespace Loadwick
