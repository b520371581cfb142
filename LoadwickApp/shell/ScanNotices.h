#pragma once

#include <QObject>
#include <QWindow>

#include "desktop/NoticeBoard.h"
#include "overview/OverviewPresenter.h"
#include "shell/ContentPresenter.h"

namespace Loadwick {

/// Tells on the desktop that a scan has ended while the window is not looked at, in the words that
/// the window has for it, until it is looked at. Belongs to the interface thread; all that it is
/// given outlives it.
class ScanNotices final : public QObject
{
    Q_OBJECT

public:
    /// What the notice says comes from these.
    struct Words
    {
        ContentPresenter &content;
        OverviewPresenter &overview;
    };

    ScanNotices(const Words &words, QWindow &window, NoticeBoard &board);

private:
    void follow();
    [[nodiscard]] NoticeBoard::Notice notice() const;

    Words m_words;
    QWindow &m_window;
    NoticeBoard &m_board;
    bool m_wasScanning;
};

} // namespace Loadwick
