#pragma once

#include <functional>
#include <string>

namespace Loadwick {

/// Lets the interface thread's events run until `isReached` holds. The program ends, with `what` in
/// its last line, when that takes longer than half a minute.
void waitUntil(const std::string &what, const std::function<bool()> &isReached);

/// Lets the events run until what was just changed has been laid out and drawn.
void settle();

} // namespace Loadwick
