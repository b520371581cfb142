// The width of the window's left column.
#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/WindowFixture.h"
#include "theme/Appearance.h"

namespace Loadwick {

class SidebarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }

    void theSidebarGrowsWithTheText()
    {
        const QAccessibleInterface *name = m_window->find(QStringLiteral("No repository selected"));
        QVERIFY(name != nullptr);
        for (const double scale : {1.0, 1.2, 1.4, 2.0}) {
            m_window->appearance().setTextScale(scale);
            (void)m_window->loadwick().window().grabWindow();
            QVERIFY(!name->object()->property("truncated").toBool());
        }
    }

    void aWideSidebarLeavesThePageItsWidth()
    {
        QQuickWindow &window = m_window->loadwick().window();
        window.resize(1500, 780);
        auto *scan = qobject_cast<QQuickItem *>(m_window->find(QStringLiteral("Scan"))->object());
        const auto right = [scan] { return qRound(scan->mapToScene({scan->width(), 0}).x()); };
        QTRY_VERIFY(right() > 1400);
        // The divider, to the right as far as it goes.
        QTest::mousePress(&window, Qt::LeftButton, {}, {250, 400});
        QTest::mouseMove(&window, {600, 400});
        QTest::mouseMove(&window, {1499, 400});
        QTest::mouseRelease(&window, Qt::LeftButton, {}, {1499, 400});
        window.resize(960, 640);
        QTRY_COMPARE(window.width(), 960);
        QTRY_VERIFY2(right() <= 960, qPrintable(QString::number(right())));
    }

private:
    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<SidebarTest> registered("Sidebar");

} // namespace Loadwick

#include "SidebarTest.moc"
