#include "overview/ShareText.h"

#include <QCoreApplication>

#include "base/QtText.h"
#include "report/ScanReport.h"
#include "text/NumberText.h"

namespace Loadwick::ShareText {

QString percent(std::int64_t tokens, std::int64_t total)
{
    return qtText(NumberText::oneDecimal(ScanReport::share(tokens, total) * 100.0)) +
           QLatin1Char('%');
}

QString ofTotal(std::int64_t tokens, std::int64_t total)
{
    return QCoreApplication::translate("ShareText", "%1 of total").arg(percent(tokens, total));
}

} // namespace Loadwick::ShareText
