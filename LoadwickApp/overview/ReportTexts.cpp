#include "overview/ReportTexts.h"

#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

QString bandSentence(const ScanReport &report, const TextLocale &locale)
{
    return QStringLiteral("The total measured by Claude is ") +
           qtText(NumberText::grouped(report.total, locale)) +
           QStringLiteral(" tokens, which falls in the ") + qtText(report.band.title()) +
           QStringLiteral(" band (") + qtText(report.band.range(locale)) + QStringLiteral(").");
}

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
        .band = report.band,
        .repositoryPath = qtText(report.repositoryPath),
        .bandTitle = qtText(report.band.title()) + QStringLiteral(" startup context"),
        .bandSentence = Loadwick::bandSentence(report, locale),
        .total = qtText(NumberText::grouped(report.total, locale)),
        .details = Loadwick::details(report),
        .notes = {qtText(ScanReport::measurementNote), qtText(ScanReport::splitsEstimateNote),
                  qtText(report.totalSourceLine())},
        .summary = Loadwick::summary(report, locale),
    };
}

} // namespace Loadwick
