#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What a trend pill says of a repository's total. A name space of its own, so that QML can name
/// the values.
namespace Loadwick::TrendKind {

Q_NAMESPACE
QML_ELEMENT

enum Value
{
    FirstScan, ///< there is nothing to compare with
    Grew,
    Shrank,
    Unchanged
};
Q_ENUM_NS(Value)

} // namespace Loadwick::TrendKind
