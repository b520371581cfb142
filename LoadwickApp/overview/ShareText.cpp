#include "overview/ShareText.h"

#include <algorithm>

#include <QCoreApplication>

#include "base/QtText.h"
#include "text/NumberText.h"

namespace Loadwick::ShareText {
namespace {

double fraction(std::int64_t tokens, std::int64_t total)
{
    if (total < 1)
        return 0.0;
    return std::clamp(static_cast<double>(tokens) / static_cast<double>(total), 0.0, 1.0);
}

} // namespace

QString percent(std::int64_t tokens, std::int64_t total)
{
    return qtText(NumberText::oneDecimal(fraction(tokens, total) * 100.0)) + QLatin1Char('%');
}

QString ofTotal(std::int64_t tokens, std::int64_t total)
{
    return QCoreApplication::translate("ShareText", "%1 of total").arg(percent(tokens, total));
}

} // namespace Loadwick::ShareText
