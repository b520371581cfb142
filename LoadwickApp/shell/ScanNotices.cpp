#include "shell/ScanNotices.h"

#include <utility>

#include "desktop/WindowActivation.h"
#include "overview/OverviewPresenter.h"
#include "shell/ContentPresenter.h"

namespace Loadwick {
namespace {

bool isScanning(const ContentPresenter &content)
{
    return content.status() == ContentPresenter::Status::Scanning;
}

} // namespace

ScanNotices::ScanNotices(const Words &words, QWindow &window, NoticeBoard &board)
    : m_words(words), m_window(window), m_board(board), m_wasScanning(isScanning(words.content))
{
    // The Overview changes last: by then all words belong to the new state.
    connect(&m_words.overview, &OverviewPresenter::changed, this, &ScanNotices::follow);
    connect(&m_window, &QWindow::activeChanged, this, [this] {
        if (m_window.isActive())
            m_board.withdraw();
    });
    connect(&m_board, &NoticeBoard::pressed, this,
            [this](const QByteArray &token) { WindowActivation::bringToFront(m_window, token); });
}

void ScanNotices::follow()
{
    const bool wasScanning = std::exchange(m_wasScanning, isScanning(m_words.content));
    const bool hasEnded = wasScanning && !m_wasScanning;
    if (hasEnded && !m_window.isActive())
        m_board.show(notice());
    else
        m_board.withdraw();
}

NoticeBoard::Notice ScanNotices::notice() const
{
    const OverviewPresenter &overview = m_words.overview;
    if (overview.state() == OverviewPresenter::State::Failure)
        return {.title = overview.headline(), .body = overview.detail()};
    return {.title = m_words.content.statusTitle(),
            .body = m_words.content.repositoryName() + QLatin1Char('\n') +
                    m_words.overview.band()->sentence()};
}

} // namespace Loadwick

#include "moc_ScanNotices.cpp"
