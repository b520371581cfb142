#include "compare/BarText.h"

#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick::BarText {

QString value(std::optional<std::int64_t> tokens, const TextLocale &locale)
{
    return tokens ? qtText(NumberText::grouped(*tokens, locale)) : QStringLiteral("–");
}

QString spoken(const QString &name, std::optional<std::int64_t> tokens, const TextLocale &locale)
{
    return name + QStringLiteral(": ") +
           (tokens ? value(tokens, locale) + QStringLiteral(" tokens")
                   : QStringLiteral("not recorded"));
}

} // namespace Loadwick::BarText
