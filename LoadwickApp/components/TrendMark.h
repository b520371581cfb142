#pragma once

#include <cstdint>
#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "history/ScanHistory.h"
#include "text/TextLocale.h"

/// What a trend pill says about a repository's total. A separate namespace, so that QML can name
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

namespace Loadwick {

/// The change of a repository's total between its two most recent scans, as a TrendPill shows it.
struct TrendMark
{
    TrendKind::Value kind = TrendKind::FirstScan;
    QString title;
    QString symbol; ///< empty for a first scan

    /// Without both a direction and a difference it is a first scan.
    [[nodiscard]] static TrendMark of(std::optional<TrendDirection> trend,
                                      std::optional<std::int64_t> delta, const TextLocale &locale);

    friend bool operator==(const TrendMark &, const TrendMark &) = default;

    Q_DECLARE_TR_FUNCTIONS(TrendMark)
};

} // namespace Loadwick
