#include "compare/ComparePresenter.h"

#include <utility>

#include "base/QtText.h"
#include "history/ScanTables.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

// About two windows full.
constexpr std::size_t manyBars = 120;

} // namespace

ComparePresenter::ComparePresenter(ScanModel &model, TextLocale locale)
    : m_model(model), m_locale(std::move(locale)), m_leaderboard(m_locale), m_combined(m_locale)
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

QStringList ComparePresenter::reading() const
{
    return {
        tr("One bar is one category of one repository's latest recorded scan. Its "
           "length is the category's tokens; all bars share one scale."),
        tr("The categories stand heaviest first, by their tokens in all repositories "
           "together. Within each, the repositories keep one order and one colour; "
           "after five, the colours start again."),
        tr("A missing bar, with a dash for its figure, means that the category was not "
           "recorded for that repository. A category recorded with no tokens says 0."),
        tr("Totals are authoritative, as reported by Claude. The category splits are "
           "local estimates."),
    };
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
    m_leaderboard.setEntries(m_comparison->leaderboard);
    m_combined.show(m_comparison);
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
