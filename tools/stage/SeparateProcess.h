#pragma once

#include <functional>

namespace Loadwick {

/// Runs `program` in a child process and returns its exit status, or 128 plus the number of the
/// signal that ended it. Forwards termination signals to the child, so that the caller always
/// cleans up. Call it before any thread starts.
[[nodiscard]] int runInSeparateProcess(const std::function<int()> &program);

} // namespace Loadwick
