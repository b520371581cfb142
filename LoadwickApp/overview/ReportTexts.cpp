#include "overview/ReportTexts.h"

#include "base/QtText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QList<QStringList> details(const ScanReport &report)
{
    return {
        {ReportTexts::tr("Repository path"), qtText(report.repositoryPath)},
        {ReportTexts::tr("Claude executable"), qtText(report.resolvedCLIPath)},
        {ReportTexts::tr("Session ID"), qtText(report.sessionID)},
        {ReportTexts::tr("Duration"),
         ReportTexts::tr("%1 seconds").arg(qtText(NumberText::oneDecimal(report.duration)))},
    };
}

QString summary(const ScanReport &report, const TextLocale &locale)
{
    QStringList lines;
    for (const std::string &line : report.summaryLines(locale))
        lines.append(qtText(line));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

ReportTexts ReportTexts::fromReport(const ScanReport &report, const TextLocale &locale)
{
    return {
        .repositoryPath = qtText(report.repositoryPath),
        .details = Loadwick::details(report),
        .notes = {qtText(ScanReport::measurementNote), qtText(ScanReport::splitsEstimateNote),
                  qtText(report.totalSourceLine())},
        .summary = Loadwick::summary(report, locale),
    };
}

} // namespace Loadwick
