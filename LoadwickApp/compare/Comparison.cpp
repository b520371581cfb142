#include "compare/Comparison.h"

#include <QCoreApplication>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "history/ScanHistory.h"
#include "text/NumberText.h"

namespace Loadwick {

Comparison Comparison::of(std::span<const RecordedScan> history)
{
    Comparison comparison{.leaderboard = ScanHistory::leaderboard(history),
                          .columns = ScanHistory::latestPerRepository(history),
                          .bars = {}};
    comparison.bars =
        BarGeometry(ScanHistory::categoryAxis(comparison.columns), comparison.columns);
    return comparison;
}

QString BarText::value(std::optional<std::int64_t> tokens, const TextLocale &locale)
{
    return tokens ? qtText(NumberText::grouped(*tokens, locale)) : QStringLiteral("–");
}

QString BarText::spoken(const QString &name, std::optional<std::int64_t> tokens,
                        const TextLocale &locale)
{
    return tokens ? QCoreApplication::translate("BarText", "%1: %2")
                        .arg(name, TokenText::count(*tokens, locale))
                  : QCoreApplication::translate("BarText", "%1: not recorded").arg(name);
}

} // namespace Loadwick
