#pragma once

class QQuickWindow;

namespace Loadwick {

/// Waits for the first frame of `window`, lets the program settle, prints one line and ends it:
/// milliseconds from STARTUP_BEGAN (nanoseconds since the epoch, in the environment) to the frame,
/// and the resident memory in KiB, separated by a space.
void reportFirstFrame(QQuickWindow &window);

} // namespace Loadwick
