#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include "samples/SampleReport.h"
#include "support/BreakdownWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

const QString hint = QStringLiteral("Hover a segment for its share.");
const QString donut = QStringLiteral("donut");
const QString ring = QStringLiteral("ring");

} // namespace

class BreakdownChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheHintWhileThePointerIsOffTheDonut()
    {
        const BreakdownWindow shown(sampleReport());
        QVERIFY(shown.texts().contains(hint));
    }

    void hoveringASliceReadsItOut()
    {
        BreakdownWindow shown(sampleReport());
        shown.pointAt(shown.item(donut).mapToScene({110 + 89, 110}));
        QVERIFY(shown.texts().contains(QStringLiteral("14,210 tokens · 51.4%")));
        QVERIFY(!shown.texts().contains(hint));
        shown.pointAt(shown.item(donut).mapToScene({110, 110}));
        QVERIFY(shown.texts().contains(hint));
    }

    void theArrowKeysReadSlicesOut()
    {
        BreakdownWindow shown(sampleReport());
        shown.press(Qt::Key_Tab);
        QVERIFY(shown.item(donut).hasActiveFocus());
        shown.press(Qt::Key_Right);
        shown.press(Qt::Key_Right);
        QVERIFY(shown.texts().contains(QStringLiteral("12,632 tokens · 45.7%")));
        shown.press(Qt::Key_Escape);
        QVERIFY(shown.texts().contains(hint));
    }

    void theReadOutDoesNotMove()
    {
        BreakdownWindow shown(sampleReport());
        const QRectF chart = shown.item(donut).mapRectToScene({0, 0, 220, 220});
        shown.press(Qt::Key_Tab);
        for (int slice = 0; slice < 3; ++slice) {
            shown.press(Qt::Key_Right);
            shown.settle();
            QQuickItem &panel = shown.item(QStringLiteral("panel"));
            QVERIFY(!panel.mapRectToScene(panel.boundingRect()).intersects(chart));
            QCOMPARE(shown.item(donut).mapRectToScene({0, 0, 220, 220}), chart);
        }
    }

    void namesTheDonutToAScreenReader()
    {
        BreakdownWindow shown(sampleReport());
        QAccessibleInterface *chart = QAccessible::queryAccessibleInterface(&shown.item(donut));
        QVERIFY(chart != nullptr);
        QCOMPARE(chart->role(), QAccessible::Graphic);
        QCOMPARE(chart->text(QAccessible::Name), shown.breakdown().chartSummary());
        QCOMPARE(chart->text(QAccessible::Description),
                 hint + QStringLiteral(" The arrow keys walk the segments."));
        shown.press(Qt::Key_Tab);
        shown.press(Qt::Key_Right);
        QCOMPARE(chart->text(QAccessible::Description), shown.breakdown().readOutSentence(0));
    }

    void theTotalIsInTheMiddle()
    {
        ScanReport report = sampleReport();
        report.total = 9'007'199'254'740'993;
        const BreakdownWindow shown(report);
        const QQuickItem &total = shown.item(QStringLiteral("total"));
        QCOMPARE(total.property("text").toString(), QStringLiteral("9,007,199,254,740,993"));
        QVERIFY(total.width() <= 220 * 0.62);
        QVERIFY(!total.property("truncated").toBool());
        const QPointF middle =
            total.mapToItem(&shown.item(donut), {total.width() / 2, total.height()});
        QCOMPARE(middle.x(), 110.0);
        QVERIFY(std::abs(middle.y() - 110) < 15);
    }

    void theDonutGrowsAndFadesIn()
    {
        const BreakdownWindow shown(sampleReport(), 700, Appearance::Full);
        const QQuickItem &arriving = shown.item(ring);
        QVERIFY(arriving.scale() < 1 && arriving.opacity() < 1);
        QVERIFY(arriving.scale() >= 0.88);
        QTRY_COMPARE(arriving.scale(), 1.0);
        QTRY_COMPARE(arriving.opacity(), 1.0);
    }

    void withReduceMotionTheDonutIsVisibleAtOnce()
    {
        const BreakdownWindow shown(sampleReport());
        QCOMPARE(shown.item(ring).scale(), 1.0);
        QCOMPARE(shown.item(ring).opacity(), 1.0);
    }
};

const RegisteredTest<BreakdownChartTest> registered("BreakdownChart");

} // namespace Loadwick

#include "BreakdownChartTest.moc"
