#include "base/PainterItem.h"

#include "support/TestRegistry.h"

#include <memory>

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QTest>

namespace Loadwick {
namespace {

/// Paints itself blue, and counts.
class BlueItem : public PainterItem
{
public:
    using PainterItem::PainterItem;

    void paint(QPainter *painter) override
    {
        ++paintCount;
        painter->fillRect(boundingRect(), Qt::blue);
    }

    int paintCount = 0;
};

} // namespace

class PainterItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QQuickWindow>();
        m_window->setColor(Qt::white);
        m_window->resize(100, 60);
        m_page = new QQuickItem(m_window->contentItem());
        m_item = new BlueItem(m_page);
        m_item->setPosition({10, 20});
        m_item->setSize({30, 20});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void paintsItsOwnPlaceAlone()
    {
        const QImage shown = m_window->grabWindow();
        const QRect place(10, 20, 30, 20);
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                QCOMPARE(shown.pixelColor(x, y),
                         QColor(place.contains(x, y) ? Qt::blue : Qt::white));
    }

    void paintsOnceUntilItChanges()
    {
        draw();
        QCOMPARE(m_item->paintCount, 1);
        m_item->setX(40);
        draw();
        QCOMPARE(m_item->paintCount, 1);
        m_item->update();
        draw();
        QCOMPARE(m_item->paintCount, 2);
        m_item->setWidth(50);
        QCOMPARE(draw().pixelColor(85, 30), QColor(Qt::blue));
        QCOMPARE(m_item->paintCount, 3);
    }

    void doesNotPaintWhileHidden()
    {
        draw();
        m_item->setVisible(false);
        m_item->update();
        m_item->setWidth(50);
        QCOMPARE(draw().pixelColor(20, 30), QColor(Qt::white));
        QCOMPARE(m_item->paintCount, 1);
        m_item->setVisible(true);
        QCOMPARE(draw().pixelColor(20, 30), QColor(Qt::blue));
        QCOMPARE(m_item->paintCount, 2);
    }

    // Its picture was given back.
    void paintsAgainWhenItsPageIsShownAgain()
    {
        draw();
        m_page->setVisible(false);
        QCOMPARE(draw().pixelColor(20, 30), QColor(Qt::white));
        m_page->setVisible(true);
        QCOMPARE(draw().pixelColor(20, 30), QColor(Qt::blue));
        QCOMPARE(m_item->paintCount, 2);
    }

    void withoutAnAreaItPaintsNothing()
    {
        m_item->setHeight(0.4);
        m_item->paintCount = 0;
        QCOMPARE(draw().pixelColor(20, 20), QColor(Qt::white));
        QCOMPARE(m_item->paintCount, 0);
    }

private:
    QImage draw() { return m_window->grabWindow(); }

    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_page = nullptr;
    BlueItem *m_item = nullptr;
};

const RegisteredTest<PainterItemTest> registered("PainterItem");

} // namespace Loadwick

#include "PainterItemTest.moc"
