#include "overview/BandTexts.h"

#include "base/QtText.h"
#include "overview/HeadroomScore.h"
#include "report/OpinionBand.h"
#include "text/NumberText.h"

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
    return BandTexts::tr(
               "The total measured by Claude is %1 tokens, which falls in the %2 band (%3).")
        .arg(grouped(report.total, locale), qtText(report.band.title()),
             qtText(report.band.range(locale)));
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
    return BandTexts::tr("Band meter from 0 to %1 tokens: %2 tokens are %3. %4.")
        .arg(scaleEnd(report, locale), grouped(report.total, locale), qtText(report.band.title()),
             ranges.join(QStringLiteral(", ")));
}

QString score(const ScanReport &report, const TextLocale &locale)
{
    return grouped(headroomScore(report.total), locale);
}

QString scoreDetail(const ScanReport &report, const TextLocale &locale)
{
    return BandTexts::tr("%1 of 100 — how much of the %2-token band scale is still free.")
        .arg(score(report, locale), scaleEnd(report, locale));
}

QString scoreCaption(const ScanReport &report)
{
    return BandTexts::tr("Derived from the %1 band position of the Claude-reported total. %2")
        .arg(qtText(report.band.title()), qtText(OpinionBand::opinionNote));
}

} // namespace

BandTexts BandTexts::fromReport(const ScanReport &report, const TextLocale &locale)
{
    return {
        .title = tr("%1 startup context").arg(qtText(report.band.title())),
        .sentence = Loadwick::sentence(report, locale),
        .total = grouped(report.total, locale),
        .bands = Loadwick::bands(),
        .meterSummary = Loadwick::meterSummary(report, locale),
        .anchorNote = qtText(OpinionBand::anchorNote),
        .score = Loadwick::score(report, locale),
        .scoreSummary = tr("Illustrative score %1 of 100").arg(Loadwick::score(report, locale)),
        .scoreDetail = Loadwick::scoreDetail(report, locale),
        .scoreCaption = Loadwick::scoreCaption(report),
    };
}

} // namespace Loadwick
