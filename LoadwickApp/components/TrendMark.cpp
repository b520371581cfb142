#include "components/TrendMark.h"

#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

// The locale writes a minus sign by itself, but no plus sign.
QString signedText(std::int64_t delta, const TextLocale &locale)
{
    const QString figures = qtText(NumberText::grouped(delta, locale));
    return delta > 0 ? QStringLiteral("+") + figures : figures;
}

} // namespace

TrendMark TrendMark::of(std::optional<TrendDirection> trend, std::optional<std::int64_t> delta,
                        const TextLocale &locale)
{
    const TrendMark first{TrendKind::FirstScan, tr("First scan"), {}};
    if (!trend || !delta)
        return first;
    switch (*trend) {
    case TrendDirection::up:
        return {TrendKind::Grew, signedText(*delta, locale), QStringLiteral("arrow.up.right")};
    case TrendDirection::down:
        return {TrendKind::Shrank, signedText(*delta, locale), QStringLiteral("arrow.down.right")};
    case TrendDirection::flat:
        return {TrendKind::Unchanged, QStringLiteral("±0"), QStringLiteral("equal")};
    }
    return first;
}

} // namespace Loadwick
