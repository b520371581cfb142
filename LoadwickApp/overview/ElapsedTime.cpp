#include "overview/ElapsedTime.h"

#include <algorithm>

namespace Loadwick {

QString elapsedTimeText(std::chrono::seconds elapsed)
{
    const auto seconds = std::max<std::chrono::seconds::rep>(elapsed.count(), 0);
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace Loadwick
