#include "overview/BandPresenter.h"

#include <algorithm>
#include <utility>

#include "base/QtText.h"
#include "report/ScanReport.h"
#include "text/NumberText.h"

namespace Loadwick {

int headroomScore(std::int64_t total) noexcept
{
    return std::clamp(static_cast<int>((1 - BandScale::position(total)) * 100), 0, 100);
}

BandPresenter::BandPresenter(TextLocale locale, QObject *parent)
    : QObject(parent), m_locale(std::move(locale))
{}

void BandPresenter::show(const ScanReport &report)
{
    m_total = report.total;
    m_band = report.band;
    m_zeroNote = qtText(report.zeroTotalNote().value_or(""));
    Q_EMIT changed();
}

QString BandPresenter::title() const
{
    return tr("%1 startup context").arg(bandTitle());
}

QString BandPresenter::sentence() const
{
    return tr("The total measured by Claude is %1 tokens, which falls in the %2 band (%3).")
        .arg(total(), bandTitle(), qtText(m_band.range(m_locale)));
}

QString BandPresenter::total() const
{
    return grouped(m_total);
}

QStringList BandPresenter::bands()
{
    QStringList titles;
    for (const OpinionBand band : OpinionBand::all)
        titles.append(qtText(band.title()));
    return titles;
}

QString BandPresenter::meterSummary() const
{
    QStringList ranges;
    for (const OpinionBand band : OpinionBand::all)
        ranges.append(qtText(band.title()) + QLatin1Char(' ') + qtText(band.range(m_locale)));
    return tr("Band meter from 0 to %1 tokens: %2 tokens are %3. %4.")
        .arg(scaleEnd(), total(), bandTitle(), ranges.join(QStringLiteral(", ")));
}

QString BandPresenter::anchorNote()
{
    return qtText(OpinionBand::anchorNote);
}

qreal BandPresenter::position() const
{
    return BandScale::position(m_total);
}

QList<qreal> BandPresenter::thresholds() const
{
    return {BandScale::thresholdPosition(OpinionBand::heavyThreshold, m_total),
            BandScale::thresholdPosition(OpinionBand::excessiveThreshold, m_total)};
}

QString BandPresenter::scoreText() const
{
    return grouped(score());
}

QString BandPresenter::scoreSummary() const
{
    return tr("Illustrative score %1 of 100").arg(scoreText());
}

QString BandPresenter::scoreDetail() const
{
    return tr("%1 of 100 — how much of the %2-token band scale is still free.")
        .arg(scoreText(), scaleEnd());
}

QString BandPresenter::scoreCaption() const
{
    return tr("Derived from the %1 band position of the Claude-reported total. %2")
        .arg(bandTitle(), qtText(OpinionBand::opinionNote));
}

QString BandPresenter::grouped(std::int64_t number) const
{
    return qtText(NumberText::grouped(number, m_locale));
}

QString BandPresenter::scaleEnd() const
{
    return grouped(BandScale::maximum(m_total));
}

QString BandPresenter::bandTitle() const
{
    return qtText(m_band.title());
}

} // namespace Loadwick

#include "moc_BandPresenter.cpp"
