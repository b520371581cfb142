#include "shell/ScanNotices.h"

#include <QTest>

#include "shell/ContentPresenter.h"
#include "support/FakeNoticeBoard.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"

namespace Loadwick {

class ScanNoticesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<WindowFixture>();
        m_window->choose(m_window->folder().path());
    }
    void cleanup()
    {
        m_other.reset();
        m_window.reset();
    }

    void announcesAnUnseenScanInTheWindowsWords()
    {
        scanUnseen();
        QVERIFY(shown());
        QCOMPARE(shown()->title, QStringLiteral("Scan complete"));
        QCOMPARE(shown()->body,
                 m_window->loadwick().content().repositoryName() +
                     QStringLiteral("\nThe total measured by Claude is 27,654 tokens, "
                                    "which falls in the Lean band (under 30,000)."));
    }

    void announcesAFailureByItsHeadlineAndDetail()
    {
        m_window->probe().answer = []() -> ProbeResult {
            throw ProbeError::sessionFailed("<b>Credit balance</b> is too low");
        };
        scanUnseen();
        QVERIFY(shown());
        QCOMPARE(shown()->title, QStringLiteral("The probe session reported an error."));
        QVERIFY(shown()->body.contains(QStringLiteral("<b>Credit balance</b> is too low")));
    }

    void staysSilentWhileTheWindowIsActive()
    {
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->finishScan();
        QVERIFY(m_window->shows(QStringLiteral("Scan complete")));
        QCOMPARE(m_window->notices().showCount, 0);
    }

    void activatingTheWindowWithdrawsTheNotice()
    {
        scanUnseen();
        QVERIFY(shown());
        m_window->loadwick().window().requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&m_window->loadwick().window()));
        QVERIFY(!shown());
    }

    void pressingTheNoticeBringsTheWindowToTheFront()
    {
        scanUnseen();
        m_window->loadwick().window().showMinimized();
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        Q_EMIT m_window->notices().pressed({});
        QVERIFY(QTest::qWaitForWindowActive(&m_window->loadwick().window()));
        QVERIFY(!(m_window->loadwick().window().windowStates() & Qt::WindowMinimized));
        QVERIFY(!shown());
    }

    void theNextScanWithdrawsTheNotice()
    {
        scanUnseen();
        QVERIFY(shown());
        m_window->loadwick().content().scan();
        QVERIFY(!shown());
        m_window->finishScan();
        QCOMPARE(m_window->notices().showCount, 2);
    }

    void choosingAFolderIsNotTheEndOfAScan()
    {
        lookElsewhere();
        m_window->loadwick().content().choose(m_window->folder().path());
        QCOMPARE(m_window->notices().showCount, 0);
    }

private:
    [[nodiscard]] const std::optional<NoticeBoard::Notice> &shown() const
    {
        return m_window->notices().shown;
    }

    void lookElsewhere()
    {
        m_other = std::make_unique<QWindow>();
        m_other->show();
        m_other->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_other.get()));
        QVERIFY(!m_window->loadwick().window().isActive());
    }

    void scanUnseen()
    {
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        lookElsewhere();
        m_window->finishScan();
    }

    std::unique_ptr<WindowFixture> m_window;
    std::unique_ptr<QWindow> m_other;
};

const RegisteredTest<ScanNoticesTest> registered("ScanNotices");

} // namespace Loadwick

#include "ScanNoticesTest.moc"
