#include "compare/ComparePresenter.h"

#include <utility>

#include "base/QtText.h"
#include "components/TrendMark.h"
#include "history/ScanTables.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

// About two windows' worth.
constexpr std::size_t manyBars = 120;

QString scanCountText(std::int64_t count)
{
    return (count == 1 ? ComparePresenter::tr("%1 scan") : ComparePresenter::tr("%1 scans"))
        .arg(count);
}

} // namespace

std::vector<LeaderboardRows::Role> leaderboardRoles(const TextLocale &locale)
{
    using Entry = LeaderboardEntry;
    const auto mark = [locale](const Entry &entry) {
        return TrendMark::of(entry.trend(), entry.delta(), locale);
    };
    const auto value = [locale](const Entry &entry) {
        return qtText(NumberText::grouped(entry.latest.total, locale));
    };
    return {
        {"title", [](const Entry &entry) { return qtText(entry.latest.repositoryName); }},
        {"detail", [](const Entry &entry) { return scanCountText(entry.scanCount); }},
        {"value", value},
        {"band", [](const Entry &entry) { return static_cast<int>(entry.latest.band()); }},
        {"bandTitle", [](const Entry &entry) { return qtText(entry.latest.band().title()); }},
        {"trendKind", [mark](const Entry &entry) { return static_cast<int>(mark(entry).kind); }},
        {"trendTitle", [mark](const Entry &entry) { return mark(entry).title; }},
        {"trendSymbol", [mark](const Entry &entry) { return mark(entry).symbol; }},
        {"place", [](const Entry &entry) { return qtText(entry.latest.repositoryPath); }},
    };
}

ComparePresenter::ComparePresenter(ScanModel &model, TextLocale locale)
    : m_model(model),
      m_locale(std::move(locale)),
      m_leaderboard(leaderboardRoles(m_locale)),
      m_combined(combinedRoles(m_locale))
{
    m_model.history().observe({.didChange = [this] { showHistory(); }});
    showHistory();
}

int ComparePresenter::columnCount() const
{
    return static_cast<int>(m_comparison->columns.size());
}

int ComparePresenter::categoryCount() const
{
    return static_cast<int>(m_comparison->bars.rowCount());
}

bool ComparePresenter::isLarge() const
{
    return m_comparison->bars.rowCount() * m_comparison->bars.columnCount() > manyBars;
}

QString ComparePresenter::scaleStart() const
{
    return qtText(NumberText::grouped(0, m_locale));
}

QString ComparePresenter::scaleEnd() const
{
    return qtText(NumberText::grouped(m_comparison->bars.maximumRowTokens(), m_locale));
}

std::string ComparePresenter::table() const
{
    return ScanTables::categories(m_comparison->columns);
}

void ComparePresenter::showHistory()
{
    m_comparison = std::make_shared<const Comparison>(Comparison::of(m_model.history().get()));
    m_emptyTitle.clear();
    m_emptyText.clear();
    if (m_comparison->columns.size() < 2) {
        showWhyEmpty(m_comparison->columns);
        m_comparison = std::make_shared<const Comparison>();
    }
    m_leaderboard.setRows(m_comparison->leaderboard);
    m_combined.setRows(CombinedLines(m_comparison));
    Q_EMIT changed();
}

void ComparePresenter::showWhyEmpty(std::span<const RecordedScan> columns)
{
    if (columns.empty()) {
        m_emptyTitle = tr("No recorded scans yet");
        m_emptyText =
            tr("Scan two repositories and their latest results appear here side by side.");
        return;
    }
    const RecordedScan &latest = columns.front();
    m_emptyTitle = tr("Only one repository recorded");
    m_emptyText =
        tr("%1 measured %2 tokens. Choose a second repository and scan it to compare the two.")
            .arg(qtText(latest.repositoryName),
                 qtText(NumberText::grouped(latest.total, m_locale)));
}

} // namespace Loadwick

#include "moc_ComparePresenter.cpp"
