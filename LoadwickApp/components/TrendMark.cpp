#include "components/TrendMark.h"

#include "base/QtText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

// Only growth has a plus sign; a direction that contradicts its delta gets none.
QString changeText(std::int64_t delta, const TextLocale &locale)
{
    return qtText(delta > 0 ? NumberText::groupedChange(delta, locale)
                            : NumberText::grouped(delta, locale));
}

} // namespace

TrendMark TrendMark::of(std::optional<TrendDirection> trend, std::optional<std::int64_t> delta,
                        const TextLocale &locale)
{
    const TrendMark first{TrendKind::FirstScan, tr("First scan"), {}};
    if (!trend || !delta)
        return first;
    const QString change = changeText(*delta, locale);
    switch (*trend) {
    case TrendDirection::up:
        return {TrendKind::Grew, change, QStringLiteral("arrow.up.right")};
    case TrendDirection::down:
        return {TrendKind::Shrank, change, QStringLiteral("arrow.down.right")};
    case TrendDirection::flat:
        return {TrendKind::Unchanged, QStringLiteral("±0"), QStringLiteral("equal")};
    }
    return first;
}

} // namespace Loadwick

#include "moc_TrendMark.cpp"
