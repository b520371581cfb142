// The whole window on a first launch: when its sheet opens, what it covers, how it closes.
#include <QAccessible>
#include <QElapsedTimer>
#include <QTest>

#include "onboarding/OnboardingPresenter.h"
#include "support/ScanFakes.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"

namespace Loadwick {

class FirstLaunchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_store = std::make_shared<FakeCompletionStore>(); }
    void cleanup() { m_window.reset(); }

    void theSheetOpensThreeHundredMillisecondsAfterTheWindow()
    {
        QElapsedTimer time;
        time.start();
        open();
        QVERIFY(!shows("Next"));
        QVERIFY(m_window->isPressable(QStringLiteral("Choose Repository…")));
        QTRY_VERIFY(shows("Next"));
        QVERIFY2(time.elapsed() >= 300, qPrintable(QString::number(time.elapsed())));
        QVERIFY(shows("See what Claude Code loads before it reads a single message"));
    }

    void theSheetWaitsUntilAnOpenDialogIsClosed()
    {
        open();
        const std::unique_ptr<QWindow> dialog = openDialog();
        QTest::qWait(500);
        QVERIFY(!shows("Next"));
        dialog->close();
        QTRY_VERIFY(shows("Next"));
    }

    void closingTheWindowUnderAnOpenDialogShowsNoSheet()
    {
        open();
        const std::unique_ptr<QWindow> dialog = openDialog();
        QTest::qWait(400);
        m_window->loadwick().window().close();
        dialog->close();
        QTest::qWait(500);
        QVERIFY(!m_window->loadwick().onboarding().isPresented());
    }

    void aCompletedWalkThroughIsNotShownAgain()
    {
        m_store->completed = true;
        open();
        QTest::qWait(500);
        QVERIFY(!shows("Next"));
        QVERIFY(m_window->isPressable(QStringLiteral("Choose Repository…")));
    }

    void closingTheWindowWithinThreeHundredMillisecondsShowsNoSheet()
    {
        open();
        QTest::qWait(100);
        m_window->loadwick().window().close();
        QTest::qWait(500);
        QVERIFY(!m_window->loadwick().onboarding().isPresented());
        QCOMPARE(m_store->writes, 0);
    }

    void destroyingTheWindowWithinThreeHundredMillisecondsIsSafe()
    {
        open();
        m_window->destroy();
        QTest::qWait(500);
        QCOMPARE(m_store->writes, 0);
    }

    void destroyingTheWindowUnderAnOpenSheetIsSafe()
    {
        openSheet();
        m_window->destroy();
        QCOMPARE(m_store->writes, 0);
    }

    void inTheLargestTextTheWordsOfAStepScroll()
    {
        openSheet();
        QQuickWindow &window = m_window->loadwick().window();
        m_window->appearance().setTextScale(2);
        window.resize(960, 640);
        const QString last = QStringLiteral("Look for the folder icon in the top-right toolbar.");
        advance(1);
        QTRY_VERIFY(m_window->shows(last));
        const auto endsAbove = [this, last](const QString &button) {
            return placeOf(last).bottom() < placeOf(button).top();
        };
        QTRY_VERIFY(!endsAbove(QStringLiteral("Next")));
        for (int press = 0; press < 20; ++press)
            m_window->press(Qt::Key_Down);
        QTRY_VERIFY(endsAbove(QStringLiteral("Next")));
        QVERIFY(placeOf(QStringLiteral("Skip")).top() > 0);
        QVERIFY(placeOf(QStringLiteral("Next")).bottom() < 640);
    }

    void returnOnTheLastStepCompletesOnceAndCloses()
    {
        openSheet();
        advance(5);
        QVERIFY(m_store->completed);
        QTRY_VERIFY(!m_window->loadwick().onboarding().isPresented());
        QTRY_VERIFY(!shows("Got it"));
        QVERIFY(m_window->isPressable(QStringLiteral("Choose Repository…")));
        QCOMPARE(m_store->writes, 1);
    }

    void enterIsThePrimaryButtonToo()
    {
        openSheet();
        m_window->press(Qt::Key_Enter, Qt::KeypadModifier);
        QTRY_VERIFY(shows("Point it at a local git repository"));
    }

    void escapeSkips()
    {
        openSheet();
        m_window->press(Qt::Key_Escape);
        QVERIFY(m_store->completed);
        QTRY_VERIFY(!m_window->loadwick().onboarding().isPresented());
        QTRY_COMPARE(focusedName(), QStringLiteral("Choose Repository…"));
    }

    void escapeDoesNothingOnTheLastStep()
    {
        openSheet();
        advance(3);
        m_window->press(Qt::Key_Escape);
        QTest::qWait(300);
        QVERIFY(m_window->loadwick().onboarding().isPresented());
        QCOMPARE(m_store->writes, 0);
    }

    void theWindowsShortcutsAreDisabledBehindIt()
    {
        openSheet();
        m_window->chooser().answer = m_window->folder().path();
        m_window->press(Qt::Key_O, Qt::ControlModifier);
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(m_window->chooser().openCount, 0);
        m_window->press(Qt::Key_Escape);
        QTRY_VERIFY(!m_window->loadwick().onboarding().isPresented());
        m_window->press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(m_window->chooser().openCount, 1);
    }

    void assistiveTechnologyFindsNothingBehindIt()
    {
        open();
        QAccessibleInterface *choose = m_window->find(QStringLiteral("Choose Repository…"));
        QVERIFY(choose != nullptr);
        openSheet();
        for (const char *name : {"Choose Repository…", "Scan", "Overview", "Trends",
                                 "No repository selected", "Start a context scan"})
            QVERIFY2(!shows(name), name);
        choose->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(m_window->chooser().openCount, 0);
    }

    void thePointerReachesNothingBehindIt()
    {
        open();
        QAccessibleInterface *choose = m_window->find(QStringLiteral("Choose Repository…"));
        const QPoint position = choose->rect().center() - m_window->loadwick().window().position();
        openSheet();
        QTest::mouseClick(&m_window->loadwick().window(), Qt::LeftButton, {}, position);
        QCOMPARE(m_window->chooser().openCount, 0);
        QVERIFY(m_window->loadwick().onboarding().isPresented());
    }

    void tabStaysOnTheSheet()
    {
        openSheet();
        advance(1);
        QTRY_VERIFY(shows("Back"));
        QStringList reached;
        for (int step = 0; step < 6; ++step) {
            m_window->press(Qt::Key_Tab);
            reached.append(focusedName());
        }
        QCOMPARE(QSet<QString>(reached.begin(), reached.end()),
                 (QSet<QString>{QStringLiteral("Skip"), QStringLiteral("Back"),
                                QStringLiteral("Next")}));
    }

    void leavesTheKeyboardOnTheFirstCommand()
    {
        openSheet();
        advance(4);
        QTRY_COMPARE(focusedName(), QStringLiteral("Choose Repository…"));
        m_window->chooser().answer = m_window->folder().path();
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_window->chooser().openCount, 1);
    }

    void restoresTheKeyboardFocus()
    {
        open();
        m_window->press(Qt::Key_F6); // into the sidebar or out of it
        m_window->press(Qt::Key_F6);
        const QString before = focusedName();
        QVERIFY(!before.isEmpty());
        QVERIFY(before != QStringLiteral("Choose Repository…"));
        openSheet();
        advance(4);
        QTRY_VERIFY(!m_window->loadwick().onboarding().isPresented());
        QTRY_COMPARE(focusedName(), before);
    }

private:
    /// Of the item of that name, in the window.
    [[nodiscard]] QRectF placeOf(const QString &name) const
    {
        const auto *item = qobject_cast<QQuickItem *>(m_window->find(name)->object());
        return item->mapRectToScene(QRectF(QPointF(), item->size()));
    }

    [[nodiscard]] bool shows(const char *name) const
    {
        return m_window->shows(QString::fromUtf8(name));
    }

    void open()
    {
        m_window = std::make_unique<WindowFixture>(m_store);
        m_window->askForFirstLaunch();
    }

    /// What the desktop's dialogs are to the program: a modal window over its own.
    std::unique_ptr<QWindow> openDialog()
    {
        auto dialog = std::make_unique<QWindow>();
        dialog->setTransientParent(&m_window->loadwick().window());
        dialog->setModality(Qt::WindowModal);
        dialog->show();
        return dialog;
    }

    void openSheet()
    {
        if (!m_window)
            open();
        QTRY_VERIFY(shows("Next"));
    }

    void advance(int times)
    {
        for (int press = 0; press < times; ++press)
            m_window->press(Qt::Key_Return);
    }

    [[nodiscard]] QString focusedName() const
    {
        QObject *focused = m_window->loadwick().window().focusObject();
        QAccessibleInterface *item = QAccessible::queryAccessibleInterface(focused);
        return item == nullptr ? QString() : item->text(QAccessible::Name);
    }

    std::shared_ptr<FakeCompletionStore> m_store;
    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<FirstLaunchTest> registered("FirstLaunch");

} // namespace Loadwick

#include "FirstLaunchTest.moc"
