#pragma once

#include <QString>

class QWindow;

namespace Loadwick {

/// Presses the visible, enabled button of that name in the way in which assistive technology does.
/// False when there is none.
[[nodiscard]] bool pressButton(QWindow &window, const QString &name);

} // namespace Loadwick
