#include "overview/BandTexts.h"

#include "overview/HeadroomScore.h"
#include "report/BandScale.h"
#include "report/NumberText.h"
#include "report/OpinionBand.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

QString grouped(std::int64_t number, const TextLocale &locale)
{
    return qtText(NumberText::grouped(number, locale));
}

QString scaleEnd(const ScanReport &report, const TextLocale &locale)
{
    return grouped(BandScale::maximum(report.total), locale);
}

QString sentence(const ScanReport &report, const TextLocale &locale)
{
    return QStringLiteral("The total measured by Claude is ") + grouped(report.total, locale) +
           QStringLiteral(" tokens, which falls in the ") + qtText(report.band.title()) +
           QStringLiteral(" band (") + qtText(report.band.range(locale)) + QStringLiteral(").");
}

QStringList bands()
{
    QStringList titles;
    for (const OpinionBand band : OpinionBand::all)
        titles.append(qtText(band.title()));
    return titles;
}

QString meterSummary(const ScanReport &report, const TextLocale &locale)
{
    QStringList ranges;
    for (const OpinionBand band : OpinionBand::all)
        ranges.append(qtText(band.title()) + QLatin1Char(' ') + qtText(band.range(locale)));
    return QStringLiteral("Band meter from 0 to ") + scaleEnd(report, locale) +
           QStringLiteral(" tokens: ") + grouped(report.total, locale) +
           QStringLiteral(" tokens are ") + qtText(report.band.title()) + QStringLiteral(". ") +
           ranges.join(QStringLiteral(", ")) + QLatin1Char('.');
}

QString score(const ScanReport &report, const TextLocale &locale)
{
    return grouped(headroomScore(report.total), locale);
}

QString scoreDetail(const ScanReport &report, const TextLocale &locale)
{
    return score(report, locale) + QStringLiteral(" of 100 — how much of the ") +
           scaleEnd(report, locale) + QStringLiteral("-token band scale is still free.");
}

QString scoreCaption(const ScanReport &report)
{
    return QStringLiteral("Derived from the ") + qtText(report.band.title()) +
           QStringLiteral(" band position of the Claude-reported total. ") +
           qtText(OpinionBand::opinionNote);
}

} // namespace

BandTexts BandTexts::fromReport(const ScanReport &report, const TextLocale &locale)
{
    return {
        .title = qtText(report.band.title()) + QStringLiteral(" startup context"),
        .sentence = Loadwick::sentence(report, locale),
        .total = grouped(report.total, locale),
        .bands = Loadwick::bands(),
        .meterSummary = Loadwick::meterSummary(report, locale),
        .anchorNote = qtText(OpinionBand::anchorNote),
        .score = Loadwick::score(report, locale),
        .scoreSummary =
            QStringLiteral("Illustrative score %1 of 100").arg(Loadwick::score(report, locale)),
        .scoreDetail = Loadwick::scoreDetail(report, locale),
        .scoreCaption = Loadwick::scoreCaption(report),
    };
}

} // namespace Loadwick
