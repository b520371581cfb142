#pragma once

#include <string_view>

#include <QString>

namespace Loadwick {

/// The core's UTF-8 as the window's text.
[[nodiscard]] inline QString qtText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace Loadwick
