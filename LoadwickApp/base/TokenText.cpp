#include "base/TokenText.h"

#include <string>

#include "base/QtText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QString withUnit(std::int64_t tokens, const std::string &figure)
{
    const bool isOne = tokens == 1 || tokens == -1;
    return (isOne ? TokenText::tr("%1 token") : TokenText::tr("%1 tokens")).arg(qtText(figure));
}

} // namespace

QString TokenText::count(std::int64_t tokens, const TextLocale &locale)
{
    return withUnit(tokens, NumberText::grouped(tokens, locale));
}

QString TokenText::change(std::int64_t tokens, const TextLocale &locale)
{
    return withUnit(tokens, NumberText::groupedChange(tokens, locale));
}

} // namespace Loadwick
