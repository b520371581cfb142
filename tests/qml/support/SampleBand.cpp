#include "SampleBand.h"

#include "samples/SampleReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

SampleBand::SampleBand(QObject *parent) : QObject(parent), m_presenter(TextLocale()) {}

void SampleBand::setTotal(double total)
{
    m_total = total;
    ScanReport report = sampleReport();
    report.total = static_cast<std::int64_t>(total);
    report.band = OpinionBand::band(report.total);
    m_presenter.show(report);
    Q_EMIT totalChanged();
}

} // namespace Loadwick
