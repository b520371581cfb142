// A window that a compositor makes narrower than its minimum: everything in it can be reached.

#include <algorithm>

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTest>
#include <QVersionNumber>

#include "shell/ContentPresenter.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

constexpr int narrow = 480;
constexpr int leastWidth = 220 + 1 + 480; // a sidebar, the line beside it, a page

} // namespace

class SidewaysScrollTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void scrollsOnlyBelowItsLeastWidth();
    void beginsAtTheSidebar_data();
    void beginsAtTheSidebar();
    void theWheelScrolls_data();
    void theWheelScrolls();
    void aVerticalWheelScrollsThePage();
    void theKeyboardScrollsToItsItem();
    void aPressedItemStaysUnderThePointer();

private:
    void resize(int width);
    void turnWheel(QPoint angle, Qt::KeyboardModifiers modifiers);
    [[nodiscard]] const QQuickItem &page();
    [[nodiscard]] QQuickWindow &window() { return m_window->loadwick().window(); }
    [[nodiscard]] double position() { return m_scroller->property("contentX").toDouble(); }

    std::unique_ptr<WindowFixture> m_window;
    QQuickItem *m_scroller = nullptr;
};

void SidewaysScrollTest::init()
{
    m_window = std::make_unique<WindowFixture>();
    m_window->appearance().setMotion(Appearance::Reduced);
    for (QQuickItem *item : shownItems(*window().contentItem()))
        if (item->property("leastWidth").isValid() && item->inherits("QQuickFlickable"))
            m_scroller = item;
    QVERIFY(m_scroller != nullptr);
}

void SidewaysScrollTest::cleanup()
{
    m_window.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void SidewaysScrollTest::scrollsOnlyBelowItsLeastWidth()
{
    for (const int width : {leastWidth, 960, 1180}) {
        resize(width);
        QCOMPARE(m_scroller->property("contentWidth").toInt(), width);
        QVERIFY(!m_scroller->property("interactive").toBool());
    }
    resize(narrow);
    QCOMPARE(m_scroller->property("contentWidth").toInt(), leastWidth);
    QVERIFY(m_scroller->property("interactive").toBool());
}

void SidewaysScrollTest::beginsAtTheSidebar_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("begin");
    QTest::newRow("left to right") << Qt::LeftToRight << 0;
    QTest::newRow("right to left") << Qt::RightToLeft << leastWidth - narrow;
}

void SidewaysScrollTest::beginsAtTheSidebar()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, begin);
    m_window.reset();
    QGuiApplication::setLayoutDirection(direction);
    init();
    resize(narrow);
    QTRY_COMPARE(int(position()), begin);
}

void SidewaysScrollTest::theWheelScrolls_data()
{
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("tilted") << QPoint(-1'200, 0) << none;
    QTest::newRow("tilted and turned") << QPoint(-1'200, 40) << none;
    QTest::newRow("turned with Shift") << QPoint(0, -1'200) << shift;
}

void SidewaysScrollTest::theWheelScrolls()
{
    QFETCH(const QPoint, angle);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    m_window->scan(m_window->folder().path());
    resize(narrow);
    turnWheel(angle, modifiers);
    QTRY_COMPARE(int(position()), leastWidth - narrow);
    turnWheel(-angle, modifiers);
    QTRY_COMPARE(int(position()), 0);
    QVERIFY(!page().property("moving").toBool());
    QCOMPARE(page().property("contentY").toDouble(), 0.0);
}

void SidewaysScrollTest::aVerticalWheelScrollsThePage()
{
    m_window->scan(m_window->folder().path());
    resize(narrow);
    QVERIFY(!page().property("moving").toBool());
    turnWheel({0, -1'200}, Qt::NoModifier);
    // Off screen, Qt 6.8 begins to move it and gets no farther.
    QVERIFY(page().property("moving").toBool());
    if (QLibraryInfo::version() < QVersionNumber(6, 5))
        QTRY_VERIFY(page().property("contentY").toDouble() > 0);
    QCOMPARE(position(), 0.0);
}

void SidewaysScrollTest::theKeyboardScrollsToItsItem()
{
    resize(narrow);
    m_window->press(Qt::Key_F6);
    m_window->press(Qt::Key_F6);
    const auto isWhole = [this] {
        const QQuickItem *item = window().activeFocusItem();
        const QRectF place = item->mapRectToScene(QRectF(QPointF(), item->size()));
        return place.left() >= 0 && place.right() <= narrow;
    };
    for (int stop = 0; stop < 4; ++stop) {
        QTRY_VERIFY(isWhole());
        m_window->press(Qt::Key_Tab);
    }
}

void SidewaysScrollTest::aPressedItemStaysUnderThePointer()
{
    resize(narrow);
    QQuickItem *choose = nullptr;
    for (QQuickItem *item : shownItems(*window().contentItem()))
        if (item->property("title") == QStringLiteral("Choose Repository…"))
            choose = item;
    QVERIFY(choose != nullptr);
    m_window->chooser().answer = m_window->folder().path();
    const QPoint edge(narrow - 2, int(choose->mapToScene({0, choose->height() / 2}).y()));
    QVERIFY(choose->mapToScene({}).x() < edge.x());
    QTest::mousePress(&window(), Qt::LeftButton, {}, edge);
    QTest::qWait(0);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, edge);
    QVERIFY(m_window->loadwick().content().hasRepository());
}

// Over the page, which scrolls too.
void SidewaysScrollTest::turnWheel(QPoint angle, Qt::KeyboardModifiers modifiers)
{
    const QPointF at(narrow - 60, 300);
    QWheelEvent turn(at, window().mapToGlobal(at), {}, angle, Qt::NoButton, modifiers,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &turn);
}

const QQuickItem &SidewaysScrollTest::page()
{
    const auto items = shownItems(*m_scroller);
    const auto found = std::find_if(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->inherits("QQuickFlickable") &&
               item->property("contentHeight").toDouble() > item->height();
    });
    return found != items.end() ? **found : *m_scroller;
}

void SidewaysScrollTest::resize(int width)
{
    window().resize(width, 640);
    QTRY_COMPARE(int(m_scroller->width()), width);
}

const RegisteredTest<SidewaysScrollTest> registered("SidewaysScroll");

} // namespace Loadwick

#include "SidewaysScrollTest.moc"
