#include "charts/MarkedChart.h"

#include "support/TestRegistry.h"

#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {
namespace {

// Marks side by side, each 10 wide.
class StripedChart final : public MarkedChart
{
public:
    explicit StripedChart(int count) : m_count(count) { setSize({10.0 * count, 10.0}); }

    void paint(QPainter *) override {}
    void setCount(int count)
    {
        m_count = count;
        forgetMarks();
    }

private:
    [[nodiscard]] int markCount() const override { return m_count; }
    [[nodiscard]] int markAt(const QPointF &point) const override
    {
        const int mark = static_cast<int>(point.x() / 10);
        return point.y() < 10 && mark < m_count ? mark : -1;
    }

    int m_count;
};

struct ChartWindow
{
    explicit ChartWindow(int count) : chart(count)
    {
        window.resize(100, 100);
        chart.setParentItem(window.contentItem());
        window.show();
        window.requestActivate();
        (void)QTest::qWaitForWindowActive(&window);
        chart.forceActiveFocus();
        QTest::mouseMove(&window, {90, 90});
    }

    int afterKey(Qt::Key key)
    {
        QTest::keyClick(&window, key);
        return chart.currentMark();
    }

    int afterMoveTo(QPoint point)
    {
        QTest::mouseMove(&window, point);
        return chart.currentMark();
    }

    QQuickWindow window;
    StripedChart chart;
};

} // namespace

class MarkedChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutACurrentMark() { QCOMPARE(ChartWindow(3).chart.currentMark(), -1); }

    void theMarkUnderThePointerIsCurrent()
    {
        ChartWindow shown(3);
        QCOMPARE(shown.afterMoveTo({15, 5}), 1);
        QCOMPARE(shown.afterMoveTo({25, 5}), 2);
        QCOMPARE(shown.afterMoveTo({25, 50}), -1);
    }

    void theFirstKeyChoosesTheFirstOrTheLastMark()
    {
        QCOMPARE(ChartWindow(3).afterKey(Qt::Key_Right), 0);
        QCOMPARE(ChartWindow(3).afterKey(Qt::Key_Down), 0);
        QCOMPARE(ChartWindow(3).afterKey(Qt::Key_Left), 2);
        QCOMPARE(ChartWindow(3).afterKey(Qt::Key_Up), 2);
    }

    void arrowKeysStopAtTheEnds()
    {
        ChartWindow shown(2);
        QCOMPARE(shown.afterKey(Qt::Key_Right), 0);
        QCOMPARE(shown.afterKey(Qt::Key_Left), 0);
        QCOMPARE(shown.afterKey(Qt::Key_Right), 1);
        QCOMPARE(shown.afterKey(Qt::Key_Right), 1);
    }

    void homeEndAndEscapeJump()
    {
        ChartWindow shown(4);
        QCOMPARE(shown.afterKey(Qt::Key_End), 3);
        QCOMPARE(shown.afterKey(Qt::Key_Home), 0);
        QCOMPARE(shown.afterKey(Qt::Key_Escape), -1);
    }

    void aKeyOverridesARestingPointer()
    {
        ChartWindow shown(3);
        QCOMPARE(shown.afterMoveTo({25, 5}), 2);
        QCOMPARE(shown.afterKey(Qt::Key_Right), 0);
        QCOMPARE(shown.afterMoveTo({15, 5}), 1);
    }

    void losingTheFocusClearsTheChosenMark()
    {
        ChartWindow shown(3);
        QCOMPARE(shown.afterKey(Qt::Key_Right), 0);
        shown.chart.setFocus(false);
        QCOMPARE(shown.chart.currentMark(), -1);
    }

    void newMarksClearTheCurrentOne()
    {
        ChartWindow shown(3);
        QCOMPARE(shown.afterKey(Qt::Key_End), 2);
        shown.chart.setCount(2);
        QCOMPARE(shown.chart.currentMark(), -1);
    }

    void namesThePositionOfTheCurrentMark()
    {
        ChartWindow shown(3);
        shown.afterKey(Qt::Key_End);
        QCOMPARE(shown.chart.markPosition(), QStringLiteral("3 of 3"));
        shown.afterKey(Qt::Key_Escape);
        QCOMPARE(shown.chart.markPosition(), QString());
    }

    void signalsEveryKeyThatChoosesAMark()
    {
        ChartWindow shown(2);
        const QSignalSpy walks(&shown.chart, &MarkedChart::walked);
        shown.afterMoveTo({15, 5});
        QCOMPARE(walks.count(), 0);
        shown.afterKey(Qt::Key_Left);
        shown.afterKey(Qt::Key_Right);
        QCOMPARE(walks.count(), 2);
        shown.afterKey(Qt::Key_Escape);
        shown.afterKey(Qt::Key_A);
        QCOMPARE(walks.count(), 2);
    }

    void aChartWithoutMarksIgnoresKeys()
    {
        ChartWindow shown(0);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QCoreApplication::sendEvent(&shown.chart, &press);
        QVERIFY(!press.isAccepted());
        QCOMPARE(shown.chart.currentMark(), -1);
    }

    void signalsANewCurrentMarkOnce()
    {
        ChartWindow shown(3);
        const QSignalSpy changes(&shown.chart, &MarkedChart::currentMarkChanged);
        shown.afterMoveTo({12, 5});
        shown.afterMoveTo({14, 5});
        QCOMPARE(changes.count(), 1);
    }
};

const RegisteredTest<MarkedChartTest> registered("MarkedChart");

} // namespace Loadwick

#include "MarkedChartTest.moc"
