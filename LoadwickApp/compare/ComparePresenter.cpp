#include "compare/ComparePresenter.h"

#include <exception>
#include <new>
#include <utility>

#include "base/QtTaskDispatcher.h"
#include "base/QtText.h"
#include "base/TokenText.h"
#include "components/TrendMark.h"
#include "history/ScanTables.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

// About two windows' worth.
constexpr std::size_t manyBars = 120;

// Comparing as many may take longer than a frame.
constexpr std::size_t manyCategories = 20'000;

std::size_t categoriesOf(std::span<const RecordedScan> scans)
{
    std::size_t count = 0;
    for (const RecordedScan &scan : scans)
        count += scan.categories.size();
    return count;
}

/// Null when there is no memory for it.
std::shared_ptr<const Comparison> comparisonOf(std::span<const RecordedScan> history)
{
    try {
        return std::make_shared<const Comparison>(Comparison::of(history));
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

QString scanCountText(std::int64_t count)
{
    return (count == 1 ? ComparePresenter::tr("%1 scan") : ComparePresenter::tr("%1 scans"))
        .arg(count);
}

} // namespace

std::vector<RankedEntry> ranked(std::vector<LeaderboardEntry> heaviestFirst)
{
    std::vector<RankedEntry> rows;
    rows.reserve(heaviestFirst.size());
    for (LeaderboardEntry &entry : heaviestFirst)
        rows.push_back({.rank = static_cast<int>(rows.size()) + 1, .entry = std::move(entry)});
    return rows;
}

std::vector<LeaderboardRows::Role> leaderboardRoles(const TextLocale &locale)
{
    using Row = RankedEntry;
    const auto title = [](const Row &row) { return qtText(row.entry.latest.repositoryName); };
    const auto detail = [](const Row &row) { return scanCountText(row.entry.scanCount); };
    const auto value = [locale](const Row &row) {
        return qtText(NumberText::grouped(row.entry.latest.total, locale));
    };
    const auto band = [](const Row &row) { return row.entry.latest.band(); };
    const auto bandTitle = [band](const Row &row) { return qtText(band(row).title()); };
    const auto mark = [locale](const Row &row) {
        return TrendMark::of(row.entry.trend(), row.entry.delta(), locale);
    };
    const auto sentence = [=](const Row &row) {
        return ComparePresenter::tr("%1. %2, %3, %4, %5, %6")
            .arg(QString::number(row.rank), title(row), detail(row),
                 TokenText::count(row.entry.latest.total, locale), bandTitle(row), mark(row).title);
    };
    return {
        {"rank", &Row::rank},
        {"title", title},
        {"detail", detail},
        {"value", value},
        {"band", [band](const Row &row) { return static_cast<int>(band(row)); }},
        {"bandTitle", bandTitle},
        {"trendKind", [mark](const Row &row) { return static_cast<int>(mark(row).kind); }},
        {"trendTitle", [mark](const Row &row) { return mark(row).title; }},
        {"trendSymbol", [mark](const Row &row) { return mark(row).symbol; }},
        {"path", [](const Row &row) { return qtText(row.entry.latest.repositoryPath); }},
        {"sentence", sentence},
    };
}

ComparePresenter::ComparePresenter(ScanModel &model, TextLocale locale,
                                   std::shared_ptr<TaskDispatcher> dispatcher)
    : m_model(model),
      m_locale(std::move(locale)),
      m_dispatcher(std::move(dispatcher)),
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

std::function<QByteArray()> ComparePresenter::table() const
{
    return [comparison = m_comparison] {
        return QByteArray::fromStdString(ScanTables::categories(comparison->columns));
    };
}

void ComparePresenter::showHistory()
{
    ++m_changes;
    const auto compare = [history = m_model.history().get()] { return comparisonOf(history); };
    const auto showUnlessOld = [this, change = m_changes](const auto &comparison) {
        if (change == m_changes)
            show(comparison);
    };
    const bool isSlow = m_dispatcher && categoriesOf(m_model.history().get()) > manyCategories;
    if (!isSlow || !inBackground(this, m_dispatcher, compare, showUnlessOld))
        show(compare());
}

void ComparePresenter::show(std::shared_ptr<const Comparison> comparison)
{
    std::shared_ptr<const Comparison> before = std::exchange(m_comparison, std::move(comparison));
    m_emptyTitle.clear();
    m_emptyText.clear();
    if (!m_comparison || m_comparison->columns.size() < 2) {
        showWhyEmpty(m_comparison.get());
        m_comparison = std::make_shared<const Comparison>();
    }
    m_leaderboard.setRows(ranked(m_comparison->leaderboard));
    m_combined.setRows(CombinedLines(m_comparison));
    Q_EMIT changed();
    if (before)
        release(std::move(before));
}

/// Freeing the names of a large one takes longer than a frame.
void ComparePresenter::release(std::shared_ptr<const Comparison> comparison) const
{
    if (!m_dispatcher || comparison->bars.rowCount() <= manyCategories)
        return;
    try {
        m_dispatcher->runInBackground([comparison = std::move(comparison)] {});
    } catch (const std::exception &) {
        // No thread can be started: freed here.
    }
}

void ComparePresenter::showWhyEmpty(const Comparison *comparison)
{
    if (comparison == nullptr) {
        m_emptyTitle = tr("The recorded scans could not be compared");
        m_emptyText =
            tr("There is not enough memory. Close other programs and start Loadwick again.");
        return;
    }
    if (!m_model.isHistoryComplete()) {
        m_emptyTitle = tr("Reading the recorded scans…");
        return;
    }
    if (comparison->columns.empty()) {
        m_emptyTitle = tr("No recorded scans yet");
        m_emptyText =
            tr("Scan two repositories and their latest results appear here side by side.");
        return;
    }
    const RecordedScan &latest = comparison->columns.front();
    m_emptyTitle = tr("Only one repository recorded");
    m_emptyText =
        tr("%1 measured %2 tokens. Choose a second repository and scan it to compare the two.")
            .arg(qtText(latest.repositoryName),
                 qtText(NumberText::grouped(latest.total, m_locale)));
}

} // namespace Loadwick

#include "moc_ComparePresenter.cpp"
