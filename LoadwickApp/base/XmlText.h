#pragma once

#include <QString>

namespace Loadwick {

/// Text as a document of XML or HTML can hold it: what neither can express, such as a control
/// character, is replaced by U+FFFD. Markup is not escaped.
[[nodiscard]] QString expressibleInXml(QString text);

} // namespace Loadwick
