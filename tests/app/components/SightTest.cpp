#include "components/Sight.h"

#include "support/TestRegistry.h"

#include <memory>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {

class SightTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QQuickWindow>();
        m_item = new QQuickItem(m_window->contentItem());
        m_sight = Sight::qmlAttachedProperties(m_item);
    }

    void anItemOfAnExposedWindowIsSeen()
    {
        QVERIFY(!m_sight->isSeen());
        const QSignalSpy changes(m_sight, &Sight::isSeenChanged);
        expose();
        QVERIFY(m_sight->isSeen());
        QCOMPARE(changes.size(), 1);
    }

    void aHiddenItemIsNotSeen()
    {
        expose();
        m_item->setVisible(false);
        QVERIFY(!m_sight->isSeen());
        m_item->setVisible(true);
        QVERIFY(m_sight->isSeen());
    }

    void anItemOfAHiddenParentIsNotSeen()
    {
        expose();
        m_window->contentItem()->setVisible(false);
        QVERIFY(!m_sight->isSeen());
    }

    void anItemOfAHiddenWindowIsNotSeen()
    {
        expose();
        m_window->hide();
        QTRY_VERIFY(!m_sight->isSeen());
    }

    void anItemOfNoWindowIsNotSeen()
    {
        expose();
        const std::unique_ptr<QQuickItem> item(m_item);
        item->setParentItem(nullptr);
        QVERIFY(!m_sight->isSeen());
    }

    void anItemThatMovesToAnotherWindowIsSeenThere()
    {
        QQuickWindow other;
        m_item->setParentItem(other.contentItem());
        expose();
        QVERIFY(!m_sight->isSeen());
        other.show();
        QTRY_VERIFY(m_sight->isSeen());
        m_item->setParentItem(m_window->contentItem());
    }

    void onlyItemsAreSeen() { QCOMPARE(Sight::qmlAttachedProperties(this), nullptr); }

private:
    void expose()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_item = nullptr; ///< of the window
    Sight *m_sight = nullptr;     ///< of the item
};

const RegisteredTest<SightTest> registered("Sight");

} // namespace Loadwick

#include "SightTest.moc"
