#include "compare/BarText.h"

#include <QCoreApplication>

#include "base/QtText.h"
#include "text/NumberText.h"

namespace Loadwick::BarText {

QString value(std::optional<std::int64_t> tokens, const TextLocale &locale)
{
    return tokens ? qtText(NumberText::grouped(*tokens, locale)) : QStringLiteral("–");
}

QString spoken(const QString &name, std::optional<std::int64_t> tokens, const TextLocale &locale)
{
    return tokens ? QCoreApplication::translate("BarText", "%1: %2 tokens")
                        .arg(name, value(tokens, locale))
                  : QCoreApplication::translate("BarText", "%1: not recorded").arg(name);
}

} // namespace Loadwick::BarText
