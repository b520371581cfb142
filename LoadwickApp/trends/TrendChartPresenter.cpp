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

} // namespace

void TrendChartPresenter::showNoHistory()
{
    show(Shown::noHistory, {});
}

void TrendChartPresenter::showReading()
{
    show(Shown::reading, {});
}

void TrendChartPresenter::show(std::span<const RecordedScan> scans)
{
    show(Shown::scans, scans);
}

void TrendChartPresenter::show(Shown shown, std::span<const RecordedScan> scans)
{
    m_shown = shown;
    m_repositoryName = scans.empty() ? QString() : qtText(scans.back().repositoryName);
    m_line.setSamples(samplesOf(scans));
    Q_EMIT changed();
}

QString TrendChartPresenter::emptyTitle() const
{
    return samples().size() == 1 ? tr("One scan recorded") : QString();
}

QString TrendChartPresenter::emptyText() const
{
    if (m_shown == Shown::noHistory)
        return tr("Scans are recorded locally as you run them. Run one scan, then "
                  "another, and the trend appears here.");
    if (m_shown == Shown::reading)
        return tr("Reading the recorded scans…");
    if (samples().empty())
        return tr("Nothing recorded for this repository yet. Scan it twice and its "
                  "trend appears here.");
    if (samples().size() > 1)
        return {};
    return tr("The one on record measured %1 tokens on %2. A trend needs at least two scans of %3. "
              "Scan again to plot a line.")
        .arg(figure(samples().front().total), day(samples().front()), nameText());
}

QString TrendChartPresenter::summary() const
{
    if (samples().size() < 2)
        return {};
    const auto [lowest, highest] = std::minmax_element(
        samples().begin(), samples().end(),
        [](const LineSample &left, const LineSample &right) { return left.total < right.total; });
    return tr("Startup tokens per scan of %1: %2 scans from %3 to %4, between %5 and "
              "%6 tokens. The Heavy band begins at %7, the Excessive band above %8.")
        .arg(nameText(), QString::number(samples().size()), day(samples().front()),
             day(samples().back()), figure(lowest->total), figure(highest->total),
             figure(OpinionBand::heavyThreshold), figure(OpinionBand::excessiveThreshold));
}

QString TrendChartPresenter::period() const
{
    if (samples().size() < 2)
        return {};
    const QString count = QString::number(samples().size());
    const QString first = day(samples().front());
    const QString last = day(samples().back());
    return first == last ? tr("%1 scans on %2.").arg(count, first)
                         : tr("%1 scans from %2 to %3.").arg(count, first, last);
}

QString TrendChartPresenter::day(const LineSample &sample) const
{
    return qtText(dateText(sample.date, DateForm::day, m_locale));
}

QString TrendChartPresenter::figure(std::int64_t tokens) const
{
    return qtText(NumberText::grouped(tokens, m_locale));
}

QString TrendChartPresenter::nameText() const
{
    return m_repositoryName.isEmpty() ? tr("this repository") : m_repositoryName;
}

} // namespace Loadwick

#include "moc_TrendChartPresenter.cpp"
