#pragma once

#include <string_view>

#include <QString>

namespace Loadwick {

/// The core's UTF-8 as a QString.
[[nodiscard]] inline QString qtText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A path for display, not for copying: its folders read from left to right, whatever their script,
/// on one line.
[[nodiscard]] inline QString shownPath(std::string_view utf8)
{
    const QChar mark(0x200E);
    QString path = qtText(utf8);
    for (const QChar lineBreak : {u'\n', u'\r', u'\u2028', u'\u2029'})
        path.replace(lineBreak, u' ');
    return mark + path.replace(QLatin1Char('/'), QString(QLatin1Char('/')) + mark);
}

} // namespace Loadwick
