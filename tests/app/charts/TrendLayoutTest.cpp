#include "charts/TrendLayout.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class TrendLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsThePlotClearOfTheLabels()
    {
        const TrendLayout layout = layoutOf(800, 260);
        QVERIFY(layout.frame().x > m_widestTotal);
        QVERIFY(layout.frame().right() < 800 - m_widestName);
        QVERIFY(layout.frame().y >= m_lineHeight / 2);
        QVERIFY(layout.dateLabelsTop() >= layout.frame().bottom());
        QVERIFY(layout.dateLabelsTop() + m_lineHeight <= 260);
    }

    void keepsWholePointsInTheFrame()
    {
        const TrendLayout layout = layoutOf(800, 260);
        QVERIFY(layout.xOf(0) - m_pointRadius >= layout.frame().x);
        QVERIFY(layout.xOf(1) + m_pointRadius <= layout.frame().right());
    }

    void mapsSharesFromTheLowerLeft()
    {
        const TrendLayout layout = layoutOf(800, 260);
        QCOMPARE(layout.xOf(0), layout.plot().x);
        QCOMPARE(layout.xOf(1), layout.plot().right());
        QCOMPARE(layout.yOf(0), layout.plot().bottom());
        QCOMPARE(layout.yOf(1), layout.plot().y);
    }

    void findsTheShareOfAPixel()
    {
        const TrendLayout layout = layoutOf(800, 260);
        const LinePoint point = layout.pointAt(layout.xOf(0.3), layout.yOf(0.7));
        QCOMPARE(point.x, 0.3);
        QCOMPARE(point.y, 0.7);
    }

    void alignsNamesWithTheirThresholds()
    {
        const TrendLayout layout = layoutOf(800, 260);
        const auto names = layout.nameHeights(30.0 / 69, 60.0 / 69);
        QCOMPARE(names.lower, layout.yOf(30.0 / 69));
        QCOMPARE(names.upper, layout.yOf(60.0 / 69));
    }

    void namesNeverOverlapEachOtherOrTheAxis_data()
    {
        QTest::addColumn<double>("upperBound");
        for (const double upperBound :
             {69'000.0, 115'000.0, 207'000.0, 1'000'000.0, 10'350'000.0, 9e18})
            QTest::addRow("%.0f", upperBound) << upperBound;
    }

    void namesNeverOverlapEachOtherOrTheAxis()
    {
        QFETCH(const double, upperBound);
        const TrendLayout layout = layoutOf(800, 260);
        const auto names = layout.nameHeights(30'000 / upperBound, 60'000 / upperBound);
        QVERIFY(names.lower - names.upper >= m_lineHeight - 1e-9);
        QVERIFY(names.lower + m_lineHeight / 2 <= layout.frame().bottom() + 1e-9);
        QVERIFY(names.upper - m_lineHeight / 2 >= layout.frame().y - 1e-9);
    }

    void centresTheReadoutOnItsPointIfPossible()
    {
        const TrendLayout layout = layoutOf(800, 260);
        const PlotRect words = layout.readout(0.5, 200);
        QCOMPARE(words.x + words.width / 2, layout.xOf(0.5));
        QVERIFY(words.width > 200);
    }

    void theReadoutStaysInTheFrame()
    {
        const TrendLayout layout = layoutOf(800, 260);
        for (const double share : {0.0, 0.01, 0.5, 0.99, 1.0})
            for (const double width : {50.0, 200.0, 5'000.0}) {
                const PlotRect words = layout.readout(share, width);
                QVERIFY(words.x >= layout.frame().x);
                QVERIFY(words.right() <= layout.frame().right() + 1e-9);
                QVERIFY(words.y >= layout.frame().y);
            }
    }

    void theReadoutNeverCoversAPoint()
    {
        const TrendLayout layout = layoutOf(800, 260);
        const double highestPoint = layout.yOf(1 / 1.15) - m_pointRadius - 1;
        QVERIFY(layout.readout(0.5, 200).bottom() <= highestPoint);
    }

    void survivesAChartWithoutRoom()
    {
        for (const double size : {0.0, 1.0, 30.0, 100.0}) {
            const TrendLayout layout = layoutOf(size, size);
            QVERIFY(layout.plot().width >= 0);
            QVERIFY(layout.plot().height >= 0);
            QVERIFY(layout.readout(1, 200).width >= 0);
            (void)layout.nameHeights(0.4, 0.8);
            (void)layout.pointAt(5, 5);
        }
    }

private:
    TrendLayout layoutOf(double width, double height) const
    {
        return TrendLayout({.width = width,
                            .height = height,
                            .lineHeight = m_lineHeight,
                            .widestTotal = m_widestTotal,
                            .widestName = m_widestName,
                            .pointRadius = m_pointRadius});
    }

    const double m_lineHeight = 17;
    const double m_widestTotal = 45;
    const double m_widestName = 60;
    const double m_pointRadius = 4;
};

const RegisteredTest<TrendLayoutTest> registered("TrendLayout");

} // namespace Loadwick

#include "TrendLayoutTest.moc"
