#include "compare/ComparePresenter.h"

#include <utility>

#include "history/ScanHistory.h"
#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {

ComparePresenter::ComparePresenter(ScanModel &model, TextLocale locale)
    : m_model(model), m_locale(std::move(locale))
{
    m_model.history().observe({.didChange = [this] { showHistory(); }});
    showHistory();
}

void ComparePresenter::showHistory()
{
    const auto latest = ScanHistory::latestPerRepository(m_model.history().get());
    m_emptyTitle.clear();
    m_emptyText.clear();
    if (latest.size() == 1)
        showOneRepository(latest.front());
    if (latest.empty()) {
        m_emptyTitle = QStringLiteral("No recorded scans yet");
        m_emptyText = QStringLiteral(
            "Scan two repositories and their latest results appear here side by side.");
    }
    Q_EMIT changed();
}

void ComparePresenter::showOneRepository(const RecordedScan &latest)
{
    m_emptyTitle = QStringLiteral("Only one repository recorded");
    m_emptyText = qtText(latest.repositoryName) + QStringLiteral(" measured ") +
                  qtText(NumberText::grouped(latest.total, m_locale)) +
                  QStringLiteral(" tokens. Choose a second repository and scan it to compare the "
                                 "two.");
}

} // namespace Loadwick
