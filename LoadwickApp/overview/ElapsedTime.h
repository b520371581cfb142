#pragma once

#include <chrono>

#include <QString>

namespace Loadwick {

/// Minutes and seconds, as on a stopwatch: "0:07", "61:00". Less than nothing shows as "0:00".
[[nodiscard]] QString elapsedTimeText(std::chrono::seconds elapsed);

} // namespace Loadwick
