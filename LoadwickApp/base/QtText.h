#pragma once

#include <string_view>

#include <QString>

namespace Loadwick {

/// The core's UTF-8 as a QString.
[[nodiscard]] inline QString qtText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A path for display, not for copying: its folders read from left to right, whatever their script.
[[nodiscard]] inline QString shownPath(std::string_view utf8)
{
    const QChar mark(0x200E);
    return mark + qtText(utf8).replace(QLatin1Char('/'), QString(QLatin1Char('/')) + mark);
}

} // namespace Loadwick
