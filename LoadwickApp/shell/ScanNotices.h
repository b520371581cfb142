#pragma once

#include <QObject>
#include <QWindow>

#include "desktop/NoticeBoard.h"

namespace Loadwick {

class ContentPresenter;
class OverviewPresenter;

/// Shows a notice on the desktop when a scan ends while the window is inactive, in the window's own
/// words, until the window becomes active. Belongs to the interface thread; all its arguments
/// outlive it.
class ScanNotices final : public QObject
{
    Q_OBJECT

public:
    /// Where the words of the notice come from.
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
