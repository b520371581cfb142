#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Loadwick {

/// What `loadwick-measure` printed of an operation, by name ("outcome", "files-opened", …). Ends
/// the test program when the tool failed.
[[nodiscard]] std::map<std::string, std::int64_t> measured(const std::vector<std::string> &words);

/// The instructions that the tool needs for an operation, its own start among them, as callgrind
/// counts them: nearly the same on every run, whatever else the machine does.
[[nodiscard]] std::int64_t instructionsOf(const std::vector<std::string> &words);

} // namespace Loadwick
