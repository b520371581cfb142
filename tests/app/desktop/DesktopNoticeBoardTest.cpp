#include "desktop/DesktopNoticeBoard.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include "base/QtTaskDispatcher.h"
#include "support/PrivateBus.h"
#include "support/StandInNotifications.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class DesktopNoticeBoardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theNoticeReachesTheDesktop();
    void theBodyIsNeverMarkup();
    void aServiceWithoutMarkupGetsThePlainText();
    void aServiceThatRaisesWindowsGetsNoAction();
    void theNextNoticeReplacesThePreviousOne();
    void withdrawsANotice();
    void withdrawsAPendingNotice();
    void withdrawsOnlyOnce();
    void neverSendsAWithdrawnNotice();
    void forwardsAPress();
    void ignoresPressesOnOtherNotices();
    void isANoOpWithoutABus();
    void isANoOpWithoutAService();
    void connectsOnlyWhenThereIsSomethingToShow();
    void canBeDestroyedBeforeTheBusIsConnected();

private:
    [[nodiscard]] QString newName() { return QStringLiteral("connection %1").arg(++m_count); }
    [[nodiscard]] StandInNotifications &desktop();
    [[nodiscard]] DesktopNoticeBoard &board();

    const NoticeBoard::Notice m_notice = {.title = QStringLiteral("Scan complete"),
                                          .body = QStringLiteral("webshop")};
    QObject m_interface;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<StandInNotifications> m_desktop;
    std::unique_ptr<DesktopNoticeBoard> m_board;
    int m_count = 0;
};

void DesktopNoticeBoardTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
}

void DesktopNoticeBoardTest::cleanup()
{
    m_board.reset();
    m_desktop.reset();
    m_bus.reset();
}

StandInNotifications &DesktopNoticeBoardTest::desktop()
{
    if (!m_desktop)
        m_desktop = std::make_unique<StandInNotifications>(m_bus->connection(newName()));
    return *m_desktop;
}

DesktopNoticeBoard &DesktopNoticeBoardTest::board()
{
    const QDBusConnection bus = m_bus->connection(newName());
    m_board = std::make_unique<DesktopNoticeBoard>(std::make_shared<QtTaskDispatcher>(m_interface),
                                                   [bus] { return bus; });
    return *m_board;
}

void DesktopNoticeBoardTest::theNoticeReachesTheDesktop()
{
    StandInNotifications &asked = desktop();
    board().show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
    const StandInNotifications::Note &note = asked.notes.first();
    QCOMPARE(note.application, QGuiApplication::applicationDisplayName());
    QCOMPARE(note.icon, QGuiApplication::desktopFileName());
    QCOMPARE(note.title, m_notice.title);
    QCOMPARE(note.body, m_notice.body);
    QCOMPARE(note.actions.first(), QStringLiteral("default"));
    QCOMPARE(note.hints.value(QStringLiteral("desktop-entry")).toString(),
             QGuiApplication::desktopFileName());
    QCOMPARE(note.replaced, 0U);
}

void DesktopNoticeBoardTest::theBodyIsNeverMarkup()
{
    StandInNotifications &asked = desktop();
    board().show(
        {.title = QStringLiteral("<b>T</b>"), .body = QStringLiteral("<img src=\"x\"> & co")});
    QTRY_COMPARE(asked.notes.size(), 1);
    QCOMPARE(asked.notes.first().title, QStringLiteral("<b>T</b>")); // titles are plain everywhere
    QCOMPARE(asked.notes.first().body, QStringLiteral("&lt;img src=&quot;x&quot;&gt; &amp; co"));
}

void DesktopNoticeBoardTest::aServiceWithoutMarkupGetsThePlainText()
{
    desktop().capabilities.removeAll(QStringLiteral("body-markup"));
    board().show({.title = {}, .body = QStringLiteral("<img> & co")});
    QTRY_COMPARE(desktop().notes.size(), 1);
    QCOMPARE(desktop().notes.first().body, QStringLiteral("<img> & co"));
}

void DesktopNoticeBoardTest::aServiceThatRaisesWindowsGetsNoAction()
{
    desktop().server = QStringLiteral("gnome-shell");
    board().show(m_notice);
    QTRY_COMPARE(desktop().notes.size(), 1);
    QCOMPARE(desktop().notes.first().actions, QStringList());
}

void DesktopNoticeBoardTest::theNextNoticeReplacesThePreviousOne()
{
    StandInNotifications &asked = desktop();
    DesktopNoticeBoard &shown = board();
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
    QTest::qWait(50); // for the answer to arrive
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 2);
    QCOMPARE(asked.notes.last().replaced, 1U);
}

void DesktopNoticeBoardTest::withdrawsANotice()
{
    StandInNotifications &asked = desktop();
    DesktopNoticeBoard &shown = board();
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
    shown.withdraw();
    QTRY_COMPARE(asked.closed, QList<uint>{1U});
}

void DesktopNoticeBoardTest::withdrawsAPendingNotice()
{
    StandInNotifications &asked = desktop();
    asked.holdsBack = true;
    DesktopNoticeBoard &shown = board();
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
    shown.withdraw();
    asked.answer();
    QTRY_COMPARE(asked.closed, QList<uint>{1U});
}

void DesktopNoticeBoardTest::withdrawsOnlyOnce()
{
    StandInNotifications &asked = desktop();
    DesktopNoticeBoard &shown = board();
    shown.withdraw();
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
    shown.withdraw();
    shown.withdraw();
    QTRY_COMPARE(asked.closed.size(), 1);
    QTest::qWait(50);
    QCOMPARE(asked.closed.size(), 1);
}

void DesktopNoticeBoardTest::neverSendsAWithdrawnNotice()
{
    StandInNotifications &asked = desktop();
    DesktopNoticeBoard &shown = board();
    shown.show(m_notice);
    shown.withdraw();
    QTest::qWait(100);
    QVERIFY(asked.notes.isEmpty());
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
}

void DesktopNoticeBoardTest::forwardsAPress()
{
    StandInNotifications &asked = desktop();
    DesktopNoticeBoard &shown = board();
    QSignalSpy pressed(&shown, &NoticeBoard::pressed);
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
    asked.press(1, QStringLiteral("leave-1"));
    QTRY_COMPARE(pressed.count(), 1);
    QCOMPARE(pressed.first().first().toByteArray(), QByteArray("leave-1"));
    asked.press(1);
    QTRY_COMPARE(pressed.count(), 2);
    QCOMPARE(pressed.last().first().toByteArray(), QByteArray());
}

void DesktopNoticeBoardTest::ignoresPressesOnOtherNotices()
{
    StandInNotifications &asked = desktop();
    DesktopNoticeBoard &shown = board();
    QSignalSpy pressed(&shown, &NoticeBoard::pressed);
    shown.show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
    asked.press(2);
    asked.press(0);
    asked.press(1);
    QTRY_COMPARE(pressed.count(), 1);
    QTest::qWait(50);
    QCOMPARE(pressed.count(), 1);
}

void DesktopNoticeBoardTest::isANoOpWithoutABus()
{
    DesktopNoticeBoard board(std::make_shared<QtTaskDispatcher>(m_interface),
                             [] { return QDBusConnection(QStringLiteral("no such connection")); });
    board.show(m_notice);
    QTest::qWait(50);
    board.show(m_notice);
    board.withdraw();
}

void DesktopNoticeBoardTest::isANoOpWithoutAService()
{
    board().show(m_notice);
    QTest::qWait(50);
    m_board->withdraw();
    // The service may start later.
    StandInNotifications &asked = desktop();
    m_board->show(m_notice);
    QTRY_COMPARE(asked.notes.size(), 1);
}

void DesktopNoticeBoardTest::connectsOnlyWhenThereIsSomethingToShow()
{
    int count = 0;
    const auto dispatcher = std::make_shared<SteppingDispatcher>();
    DesktopNoticeBoard board(dispatcher, [&count] {
        ++count;
        return QDBusConnection(QStringLiteral("no such connection"));
    });
    dispatcher->runAll();
    QCOMPARE(count, 0);
    board.show(m_notice);
    QCOMPARE(count, 0); // only in the background
    dispatcher->runAll();
    QCOMPARE(count, 1);
}

void DesktopNoticeBoardTest::canBeDestroyedBeforeTheBusIsConnected()
{
    const auto dispatcher = std::make_shared<SteppingDispatcher>();
    {
        DesktopNoticeBoard board(dispatcher, [this] { return m_bus->connection(newName()); });
        board.show(m_notice);
    }
    dispatcher->runAll();
}

const RegisteredTest<DesktopNoticeBoardTest> registered("DesktopNoticeBoard");

} // namespace Loadwick

#include "DesktopNoticeBoardTest.moc"
