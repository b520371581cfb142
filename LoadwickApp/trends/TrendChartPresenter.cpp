#include "trends/TrendChartPresenter.h"

#include <algorithm>

#include "base/QtText.h"
#include "report/OpinionBand.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

std::vector<LineSample> samplesOf(std::span<const RecordedScan> scans)
{
    std::vector<LineSample> samples;
    samples.reserve(scans.size());
    for (const RecordedScan &scan : scans)
        samples.push_back({.date = scan.date, .total = scan.total});
    return samples;
}

QString nameOf(const std::string &repositoryName)
{
    return repositoryName.empty() ? TrendChartPresenter::tr("this repository")
                                  : qtText(repositoryName);
}

} // namespace

void TrendChartPresenter::showNoHistory()
{
    m_line.setSamples({});
    setWords({},
             tr("Scans are recorded locally as you run them. Run one scan, then "
                "another, and the trend appears here."),
             {}, {});
}

void TrendChartPresenter::showReading()
{
    m_line.setSamples({});
    setWords({}, tr("Reading the recorded scans…"), {}, {});
}

void TrendChartPresenter::show(std::span<const RecordedScan> scans)
{
    m_line.setSamples(samplesOf(scans));
    if (scans.empty())
        setWords({},
                 tr("Nothing recorded for this repository yet. Scan it twice and its "
                    "trend appears here."),
                 {}, {});
    else if (scans.size() == 1)
        setWords(tr("One scan recorded"), oneScanText(scans.front()), {}, {});
    else
        setWords({}, {}, summaryOf(scans.back().repositoryName),
                 periodOf(m_line.geometry().samples()));
}

void TrendChartPresenter::setWords(const QString &emptyTitle, const QString &emptyText,
                                   const QString &summary, const QString &period)
{
    m_emptyTitle = emptyTitle;
    m_emptyText = emptyText;
    m_summary = summary;
    m_period = period;
    Q_EMIT changed();
}

QString TrendChartPresenter::oneScanText(const RecordedScan &scan) const
{
    return tr("The one on record measured %1 tokens on %2. A trend needs at least two scans of %3. "
              "Scan again to plot a line.")
        .arg(qtText(NumberText::grouped(scan.total, m_locale)),
             qtText(dateText(scan.date, DateForm::day, m_locale)), nameOf(scan.repositoryName));
}

QString TrendChartPresenter::summaryOf(const std::string &repositoryName) const
{
    const std::vector<LineSample> &samples = m_line.geometry().samples();
    const auto [lowest, highest] = std::minmax_element(
        samples.begin(), samples.end(),
        [](const LineSample &left, const LineSample &right) { return left.total < right.total; });
    const auto figure = [this](std::int64_t tokens) {
        return qtText(NumberText::grouped(tokens, m_locale));
    };
    return tr("Startup tokens per scan of %1: %2 scans from %3 to %4, between %5 and "
              "%6 tokens. The Heavy band begins at %7, the Excessive band above %8.")
        .arg(nameOf(repositoryName), QString::number(samples.size()),
             qtText(dateText(samples.front().date, DateForm::day, m_locale)),
             qtText(dateText(samples.back().date, DateForm::day, m_locale)), figure(lowest->total),
             figure(highest->total), figure(OpinionBand::heavyThreshold),
             figure(OpinionBand::excessiveThreshold));
}

QString TrendChartPresenter::periodOf(const std::vector<LineSample> &samples) const
{
    const QString count = QString::number(samples.size());
    const QString first = qtText(dateText(samples.front().date, DateForm::day, m_locale));
    const QString last = qtText(dateText(samples.back().date, DateForm::day, m_locale));
    return first == last ? tr("%1 scans on %2.").arg(count, first)
                         : tr("%1 scans from %2 to %3.").arg(count, first, last);
}

} // namespace Loadwick

#include "moc_TrendChartPresenter.cpp"
