#include <functional>

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

#include "shell/ContentPresenter.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"
#include "theme/Appearance.h"

namespace Loadwick {

/// The keys of the real window that belong to no single control.
class ContentKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }

    void controlAndANumberSelectAPage()
    {
        m_window->press(Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(pageIndex(), 1);
        m_window->press(Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(pageIndex(), 2);
        m_window->press(Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(pageIndex(), 0);
    }

    void thePagesCanBeChangedFromWithinAPage()
    {
        scan();
        m_window->press(Qt::Key_F6);
        m_window->press(Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(pageIndex(), 2);
    }

    void f6GoesToThePageAndBack()
    {
        scan();
        m_window->press(Qt::Key_F6);
        QVERIFY(focused() != nullptr);
        QCOMPARE(focusedName(), QString::fromStdString(m_window->folder().path().string()));
        QVERIFY(column(focused()) > 250);
        m_window->press(Qt::Key_F6);
        QCOMPARE(focusedName(), currentPage());
        m_window->press(Qt::Key_Down);
        QCOMPARE(pageIndex(), 1);
    }

    void f6ReturnsToWhereTheKeyboardWas()
    {
        scan();
        m_window->press(Qt::Key_F6);
        m_window->press(Qt::Key_Tab);
        QQuickItem *const there = focused();
        QVERIFY(column(there) > 250);
        m_window->press(Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(focusedName(), currentPage());
        m_window->press(Qt::Key_F6);
        QCOMPARE(focused(), there);
    }

    void f6GoesToTheFirstStopOfAnOpenedPageAndBackToTheLastUsed()
    {
        scan();
        m_window->press(Qt::Key_F6);
        QQuickItem *const onOverview = focused();
        m_window->press(Qt::Key_2, Qt::ControlModifier);
        m_window->press(Qt::Key_F6);
        QVERIFY(focusedName().contains(QStringLiteral("27,654 tokens, Lean"))); // a previous run
        m_window->press(Qt::Key_Tab);
        QQuickItem *const onTrends = focused();
        m_window->press(Qt::Key_1, Qt::ControlModifier);
        m_window->press(Qt::Key_F6);
        QCOMPARE(focused(), onOverview);
        m_window->press(Qt::Key_2, Qt::ControlModifier);
        m_window->press(Qt::Key_F6);
        QCOMPARE(focused(), onTrends);
    }

    void f6GoesToTheToolbarWhereAPageHasNoStop()
    {
        m_window->press(Qt::Key_Tab);
        QCOMPARE(focusedName(), currentPage());
        m_window->press(Qt::Key_F6);
        QCOMPARE(focusedName(), QStringLiteral("Choose Repository…"));
        m_window->press(Qt::Key_F6);
        QCOMPARE(focusedName(), currentPage());
    }

    void theKeyboardDoesNotStayOnAHiddenPage()
    {
        scan();
        m_window->press(Qt::Key_F6);
        m_window->press(Qt::Key_2, Qt::ControlModifier);
        QVERIFY(focused()->isVisible());
        QCOMPARE(focusedName(), currentPage());
        m_window->press(Qt::Key_F6);
        QVERIFY(focused()->isVisible());
        QVERIFY(column(focused()) > 250);
    }

    void theKeyboardLeavesAPageThatWasHiddenBehindADialog()
    {
        scan();
        m_window->press(Qt::Key_F6);
        openAndCloseADialog([this] { m_window->loadwick().content().setPageIndex(1); });
        QCOMPARE(focusedName(), currentPage());
    }

    void aWindowWithoutAFocusedStopFocusesTheNameOfTheRepository()
    {
        QTRY_COMPARE(focusedName(), QStringLiteral("No repository selected"));
        openAndCloseADialog();
        QTRY_COMPARE(focusedName(), QStringLiteral("No repository selected"));
    }

    void aStopKeepsTheFocusBehindADialog()
    {
        m_window->press(Qt::Key_F6);
        openAndCloseADialog();
        QCoreApplication::processEvents();
        QCOMPARE(focusedName(), QStringLiteral("Choose Repository…"));
    }

    // Elsewhere the page takes these keys.
    void homeAndEndReachTheFirstAndTheLastPage()
    {
        m_window->press(Qt::Key_Tab);
        scan();
        QCOMPARE(focusedName(), currentPage());
        m_window->press(Qt::Key_End);
        QCOMPARE(pageIndex(), 2);
        m_window->press(Qt::Key_Home);
        QCOMPARE(pageIndex(), 0);
    }

    void controlWAndControlQCloseTheWindow_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("W") << Qt::Key_W;
        QTest::newRow("Q") << Qt::Key_Q;
    }

    void controlWAndControlQCloseTheWindow()
    {
        QFETCH(Qt::Key, key);
        m_window->press(key, Qt::ControlModifier);
        QVERIFY(!m_window->loadwick().window().isVisible());
    }

    void tabGoesFromTheSidebarThroughTheToolbarToThePage()
    {
        scan();
        QStringList stops;
        for (int count = 0; count < 5; ++count) {
            m_window->press(Qt::Key_Tab);
            stops.append(focusedName());
        }
        const QString folder = QString::fromStdString(m_window->folder().path().string());
        QCOMPARE(
            stops,
            QStringList({folder, QStringLiteral("Overview"), QStringLiteral("Choose Repository…"),
                         QStringLiteral("Scanned repositories"), QStringLiteral("Scan Again")}));
    }

    void everyTabStopShowsItsFocus()
    {
        stopMotion();
        scan();
        QQuickWindow &window = m_window->loadwick().window();
        QQuickItem elsewhere(window.contentItem());
        QList<const QQuickItem *> seen;
        for (m_window->press(Qt::Key_Tab); !seen.contains(focused()) && seen.size() < 100;
             m_window->press(Qt::Key_Tab)) {
            QQuickItem *stop = focused();
            seen.append(stop);
            QTest::qWait(1);
            const QImage with = window.grabWindow();
            elsewhere.forceActiveFocus();
            const QImage without = window.grabWindow();
            QVERIFY2(with != without, qPrintable(nameOf(stop)));
            stop->forceActiveFocus(Qt::TabFocusReason);
        }
        QVERIFY(seen.size() > 8);
        QVERIFY(seen.size() < 100);
    }

    void toolTipsNameTheKeys_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("key");
        QTest::newRow("choose") << QStringLiteral("Choose Repository…") << QStringLiteral("Ctrl+O");
        QTest::newRow("scan") << QStringLiteral("Scan Again") << QStringLiteral("Ctrl+R");
        QTest::newRow("overview") << QStringLiteral("Overview") << QStringLiteral("Ctrl+1");
        QTest::newRow("trends") << QStringLiteral("Trends") << QStringLiteral("Ctrl+2");
        QTest::newRow("compare") << QStringLiteral("Compare") << QStringLiteral("Ctrl+3");
    }

    void toolTipsNameTheKeys()
    {
        QFETCH(QString, name);
        QFETCH(QString, key);
        m_window->choose(m_window->folder().path());
        // Forces a layout.
        (void)m_window->loadwick().window().grabWindow();
        auto *control = qobject_cast<QQuickItem *>(m_window->find(name)->object());
        const QPointF middle(control->width() / 2, control->height() / 2);
        QTest::mouseMove(&m_window->loadwick().window(), control->mapToScene(middle).toPoint());
        QTRY_VERIFY(shownToolTip(*control).endsWith(key));
    }

private:
    [[nodiscard]] int pageIndex() { return m_window->loadwick().content().pageIndex(); }
    /// The row that is focused when the page list has the focus.
    [[nodiscard]] QString currentPage()
    {
        const AppPage page = AppPage::all.at(static_cast<std::size_t>(pageIndex()));
        return QString::fromStdString(std::string(page.title()));
    }
    [[nodiscard]] QQuickItem *focused() { return m_window->loadwick().window().activeFocusItem(); }
    [[nodiscard]] static double column(const QQuickItem *item)
    {
        return item == nullptr ? 0.0 : item->mapToScene(QPointF()).x();
    }

    [[nodiscard]] static QString nameOf(QQuickItem *item)
    {
        QAccessibleInterface *found =
            item == nullptr ? nullptr : QAccessible::queryAccessibleInterface(item);
        return found == nullptr ? QString() : found->text(QAccessible::Name);
    }
    [[nodiscard]] QString focusedName() { return nameOf(focused()); }

    /// The words of the control's open tool tip; empty while there is none.
    [[nodiscard]] static QString shownToolTip(const QQuickItem &control)
    {
        const QList<QObject *> children = control.findChildren<QObject *>();
        for (const QObject *child : children)
            if (child->inherits("QQuickToolTip") && child->property("visible").toBool())
                return child->property("words").toString();
        return {};
    }

    void openAndCloseADialog(const std::function<void()> &meanwhile = [] {})
    {
        QQuickWindow dialog;
        dialog.show();
        dialog.requestActivate();
        QTRY_VERIFY(focused() == nullptr);
        meanwhile();
        dialog.close();
        m_window->loadwick().window().requestActivate();
        QTRY_VERIFY(focused() != nullptr);
    }

    void scan()
    {
        m_window->scan(m_window->folder().path());
        QTRY_VERIFY(m_window->shows(QStringLiteral("Scan complete")));
    }

    void stopMotion()
    {
        QQmlEngine *engine = qmlEngine(&m_window->loadwick().window());
        const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
        engine->singletonInstance<Appearance *>(type)->setMotion(Appearance::Reduced);
    }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<ContentKeysTest> registered("ContentKeys");

} // namespace Loadwick

#include "ContentKeysTest.moc"
