#pragma once

#include <functional>

namespace Loadwick {

/// Runs `program` in a child process and gives its exit status, or 128 plus the number of the
/// signal that ended it. Signals that ask this process to end are handed on to the child, so that
/// the caller always gets to tidy up. To be called before any thread is started.
[[nodiscard]] int runInProcessOfItsOwn(const std::function<int()> &program);

} // namespace Loadwick
