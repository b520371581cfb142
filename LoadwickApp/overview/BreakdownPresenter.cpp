#include "overview/BreakdownPresenter.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/QtText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

QStringList notesOf(const ScanReport &report, const TextLocale &locale)
{
    QStringList notes;
    for (const std::optional<std::string> &note :
         {report.overAttributionNote(locale), report.unreadableFilesNote(),
          report.unreadableFilesPlatformNote()}) {
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
    return m_rows.text(row, QStringLiteral("name"));
}

QString BreakdownPresenter::readOutDetail(int row) const
{
    return m_rows.hasIndex(row, 0) ? tr("%1 tokens · %2")
                                         .arg(m_rows.text(row, QStringLiteral("tokens")),
                                              m_rows.text(row, QStringLiteral("share")))
                                   : QString();
}

QString BreakdownPresenter::readOutSentence(int row) const
{
    return m_rows.text(row, QStringLiteral("sentence"));
}

QString BreakdownPresenter::summaryOfChart() const
{
    const auto &rows = m_rows.rows();
    if (!m_hasSlices)
        return {};
    const auto found = std::ranges::max_element(rows, {}, &SlabAttribution::tokens);
    const auto largest = static_cast<int>(found - rows.begin());
    const auto count = static_cast<std::int64_t>(rows.size());
    return tr("Donut chart of the breakdown by category, %1 tokens in all. "
              "The largest of %2: %3, %4 tokens, %5")
        .arg(m_total, qtText(NumberText::grouped(count, m_locale)),
             m_rows.text(largest, QStringLiteral("name")),
             m_rows.text(largest, QStringLiteral("tokens")),
             m_rows.text(largest, QStringLiteral("share")));
}

} // namespace Loadwick

#include "moc_BreakdownPresenter.cpp"
