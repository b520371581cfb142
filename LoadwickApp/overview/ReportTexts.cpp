#include "overview/ReportTexts.h"

#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

QList<QStringList> details(const ScanReport &report)
{
    return {
        {QStringLiteral("Repository path"), qtText(report.repositoryPath)},
        {QStringLiteral("Claude executable"), qtText(report.resolvedCLIPath)},
        {QStringLiteral("Session ID"), qtText(report.sessionID)},
        {QStringLiteral("Duration"),
         qtText(NumberText::oneDecimal(report.duration)) + QStringLiteral(" seconds")},
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
