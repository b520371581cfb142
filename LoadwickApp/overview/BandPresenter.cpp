#include "overview/BandPresenter.h"

#include <utility>

#include "overview/HeadroomScore.h"
#include "report/OpinionBand.h"

namespace Loadwick {

BandPresenter::BandPresenter(TextLocale locale, QObject *parent)
    : QObject(parent), m_locale(std::move(locale))
{}

void BandPresenter::show(const ScanReport &report)
{
    m_texts = BandTexts::fromReport(report, m_locale);
    m_band = report.band;
    m_position = BandScale::position(report.total);
    m_thresholds = {BandScale::thresholdPosition(OpinionBand::heavyThreshold, report.total),
                    BandScale::thresholdPosition(OpinionBand::excessiveThreshold, report.total)};
    m_score = headroomScore(report.total);
    Q_EMIT changed();
}

} // namespace Loadwick
