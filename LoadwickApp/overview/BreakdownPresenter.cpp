#include "overview/BreakdownPresenter.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QClipboard>
#include <QGuiApplication>

#include "base/QtText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QStringList notesOf(const ScanReport &report, const TextLocale &locale)
{
    QStringList notes;
    for (const std::optional<std::string> &note :
         {report.overAttributionNote(locale), report.unreadableFilesNote()}) {
        if (note)
            notes.append(qtText(*note));
    }
    return notes;
}

QList<qreal> slicesOf(const ScanReport &report)
{
    QList<qreal> slices;
    slices.reserve(static_cast<qsizetype>(report.rows.size()));
    for (const SlabAttribution &row : report.rows)
        slices.append(static_cast<qreal>(row.tokens));
    return slices;
}

} // namespace

BreakdownPresenter::BreakdownPresenter(TextLocale locale, QObject *parent)
    : QObject(parent), m_locale(std::move(locale)), m_rows(m_locale)
{}

void BreakdownPresenter::show(const ScanReport &report)
{
    m_rows.show(report);
    m_slices = slicesOf(report);
    m_hasSlices = std::ranges::any_of(m_slices, [](qreal tokens) { return tokens > 0; });
    m_selfReported = report.categoriesSelfReported;
    m_total = qtText(NumberText::grouped(report.total, m_locale));
    m_chartSummary = summaryOfChart();
    m_notes = notesOf(report, m_locale);
    Q_EMIT changed();
}

QString BreakdownPresenter::readOutTitle(int row) const
{
    const SlabAttribution *found = at(row);
    return found != nullptr ? m_rows.name(*found) : QString();
}

QString BreakdownPresenter::readOutDetail(int row) const
{
    const SlabAttribution *found = at(row);
    return found != nullptr ? tr("%1 tokens · %2").arg(m_rows.tokens(*found), m_rows.share(*found))
                            : QString();
}

QString BreakdownPresenter::readOutSentence(int row) const
{
    const SlabAttribution *found = at(row);
    return found != nullptr ? m_rows.sentence(*found) : QString();
}

void BreakdownPresenter::copyRow(int row) const
{
    if (const SlabAttribution *found = at(row))
        QGuiApplication::clipboard()->setText(m_rows.sentence(*found));
}

const SlabAttribution *BreakdownPresenter::at(int row) const noexcept
{
    const auto &rows = m_rows.rows();
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < rows.size() ? &rows[index] : nullptr;
}

QString BreakdownPresenter::summaryOfChart() const
{
    const auto &rows = m_rows.rows();
    if (!m_hasSlices)
        return {};
    const auto largest = std::ranges::max_element(rows, {}, &SlabAttribution::tokens);
    const auto count = static_cast<std::int64_t>(rows.size());
    return tr("Donut chart of the breakdown by category, %1 tokens in all. "
              "The largest of %2: %3, %4 tokens, %5")
        .arg(m_total, qtText(NumberText::grouped(count, m_locale)), m_rows.name(*largest),
             m_rows.tokens(*largest), m_rows.share(*largest));
}

} // namespace Loadwick

#include "moc_BreakdownPresenter.cpp"
