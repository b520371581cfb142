#include "charts/BandMeterGeometry.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include <QSignalSpy>
#include <QTest>

#include "report/OpinionBand.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

using BandMeterGeometry::Extent;
using BandMeterGeometry::Label;
using BandMeterGeometry::Meter;

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
// The approximate widths of the three words in the caption font.
constexpr std::array<double, 3> wordWidths = {28, 38, 60};

Meter meterOf(std::int64_t total, double width)
{
    return {.width = width,
            .thresholds = {BandScale::thresholdPosition(OpinionBand::heavyThreshold, total),
                           BandScale::thresholdPosition(OpinionBand::excessiveThreshold, total)},
            .position = BandScale::position(total)};
}

std::array<Label, 3> labelsOf(std::int64_t total, double width)
{
    return BandMeterGeometry::labels(meterOf(total, width), wordWidths);
}

std::array<bool, 3> shown(const std::array<Label, 3> &labels)
{
    return {labels[0].isShown, labels[1].isShown, labels[2].isShown};
}

bool isClose(double a, double b)
{
    return std::abs(a - b) < 1e-9;
}

} // namespace

class BandMeterGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeSegmentsShareAMeterOfTheNormalScale_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::newRow("nothing") << qint64(0);
        QTest::newRow("one below heavy") << qint64(29'999);
        QTest::newRow("one below the end") << qint64(89'999);
    }

    void threeSegmentsShareAMeterOfTheNormalScale()
    {
        QFETCH(const qint64, total);
        const auto segments = BandMeterGeometry::segments(meterOf(total, 900));
        for (std::size_t i = 0; i < segments.size(); ++i) {
            QVERIFY(isClose(segments[i].left, 300.0 * static_cast<double>(i)));
            QVERIFY(isClose(segments[i].width, 300));
        }
    }

    void aTotalOfNinetyThousandMovesTheTicksToTheQuarterAndTheHalf()
    {
        const auto ticks = BandMeterGeometry::ticks(meterOf(90'000, 800));
        QVERIFY(isClose(ticks[0], 200));
        QVERIFY(isClose(ticks[1], 400));
    }

    void segmentsCoverTheMeterWithoutGaps_data() { allMeters(); }
    void segmentsCoverTheMeterWithoutGaps()
    {
        const Meter meter = fetched();
        const auto segments = BandMeterGeometry::segments(meter);
        const auto ticks = BandMeterGeometry::ticks(meter);
        QCOMPARE(segments[0].left, 0.0);
        QVERIFY(isClose(segments[0].right(), ticks[0]));
        QVERIFY(isClose(segments[1].left, ticks[0]));
        QVERIFY(isClose(segments[1].right(), ticks[1]));
        QVERIFY(isClose(segments[2].left, ticks[1]));
        QVERIFY(isClose(segments[2].right(), meter.width));
        for (const Extent &segment : segments)
            QVERIFY(segment.width >= 0);
    }

    void theMarkerNeverLeavesTheBar_data() { allMeters(); }
    void theMarkerNeverLeavesTheBar()
    {
        const Meter meter = fetched();
        for (const double position : {-0.1, 0.0, 0.001, 0.5, 0.999, 1.0, 1.006, meter.position}) {
            const double left = BandMeterGeometry::markerLeft(meter.width, position);
            QVERIFY(left >= 0);
            QVERIFY(left <= std::max(0.0, meter.width - 12));
        }
    }

    void theMarkerIsCentredOnItsPositionExceptAtTheEnds()
    {
        QCOMPARE(BandMeterGeometry::markerLeft(900, 0.5), 444.0);
        QCOMPARE(BandMeterGeometry::markerLeft(900, BandScale::position(0)), 0.0);
        QCOMPARE(BandMeterGeometry::markerLeft(900, BandScale::position(largest)), 888.0);
    }

    void labelsNeitherOverlapNorLeaveTheMeter_data() { allMeters(); }
    void labelsNeitherOverlapNorLeaveTheMeter()
    {
        const Meter meter = fetched();
        const auto labels = BandMeterGeometry::labels(meter, wordWidths);
        double free = 0;
        for (std::size_t i = 0; i < labels.size(); ++i) {
            if (!labels[i].isShown)
                continue;
            QCOMPARE(labels[i].extent.width, wordWidths[i]);
            QVERIFY(labels[i].extent.left >= free - 1e-9);
            QVERIFY(labels[i].extent.right() <= meter.width + 1e-9);
            free = labels[i].extent.right() + BandMeterGeometry::labelGap;
        }
    }

    void aVisibleLabelSpansTheMiddleOfItsSegment_data() { allMeters(); }
    void aVisibleLabelSpansTheMiddleOfItsSegment()
    {
        const Meter meter = fetched();
        const auto segments = BandMeterGeometry::segments(meter);
        const auto labels = BandMeterGeometry::labels(meter, wordWidths);
        for (std::size_t i = 0; i < labels.size(); ++i) {
            if (!labels[i].isShown)
                continue;
            QVERIFY(labels[i].extent.left <= segments[i].middle() + 1e-9);
            QVERIFY(labels[i].extent.right() >= segments[i].middle() - 1e-9);
        }
    }

    void centresLabelsIfThereIsRoom()
    {
        const auto labels = labelsOf(142'318, 900);
        QCOMPARE(shown(labels), (std::array{true, true, true}));
        QVERIFY(isClose(labels[0].extent.middle(), 90));
        QVERIFY(isClose(labels[1].extent.middle(), 270));
        QVERIFY(isClose(labels[2].extent.middle(), 630));
    }

    void aLabelMovesAsideWhereItsSegmentIsNarrow()
    {
        // Segments of 26 pixels: the first label keeps to the end, the second makes room for it.
        const auto labels = labelsOf(1'000'000, 900);
        QCOMPARE(shown(labels), (std::array{true, true, true}));
        QCOMPARE(labels[0].extent.left, 0.0);
        QCOMPARE(labels[1].extent.left, 36.0);
    }

    void hidesALabelThatWouldLandUnderAnotherSegment()
    {
        // Segments of 3 pixels.
        QCOMPARE(shown(labelsOf(9'000'000, 900)), (std::array{true, false, true}));
        QCOMPARE(shown(labelsOf(largest, 900)), (std::array{true, false, true}));
    }

    void theBandOfTheTotalKeepsItsLabel()
    {
        QCOMPARE(shown(labelsOf(10'000, 30)), (std::array{true, false, false}));
        QCOMPARE(shown(labelsOf(45'000, 60)), (std::array{false, true, false}));
        QCOMPARE(shown(labelsOf(70'000, 70)), (std::array{false, false, true}));
        QCOMPARE(shown(labelsOf(10'000, 100)), (std::array{true, false, true}));
    }

    void theThresholdsBelongToTheHeavySegment()
    {
        QVERIFY(shown(labelsOf(30'000, 60))[1]);
        QVERIFY(shown(labelsOf(60'000, 60))[1]);
        QVERIFY(!shown(labelsOf(60'001, 65))[1]);
    }

    void aMeterWithoutWidthShowsNoLabel()
    {
        QCOMPARE(shown(labelsOf(42'318, 0)), (std::array{false, false, false}));
    }

    void exposesItsLayoutToPages()
    {
        const BandMeterLayout &layout = laidOut({0.25, 0.5}, {30, 40, 60});
        QCOMPARE(layout.ticks(), (QList<qreal>{200, 400}));
        QCOMPARE(layout.labelLefts(), (QList<qreal>{85, 280, 570}));
        QCOMPARE(layout.labelsShown(), (QList<bool>{true, true, true}));
        QCOMPARE(BandMeterLayout::markerLeft(800, 0.75), 594.0);
    }

    void followsTheWidthOfThePage()
    {
        BandMeterLayout &layout = laidOut({0.25, 0.5}, {30, 40, 60});
        QSignalSpy changed(&layout, &BandMeterLayout::changed);
        layout.setProperty("width", 62);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(layout.labelsShown(), (QList<bool>{false, false, true}));
    }

    void padsShortListsAndTruncatesLongOnes()
    {
        QCOMPARE(laidOut({}, {30}).ticks(), (QList<qreal>{0, 0}));
        QCOMPARE(laidOut({}, {30}).labelLefts(), laidOut({0, 0}, {30, 0, 0}).labelLefts());
        QCOMPARE(laidOut({0.1, 0.2, 0.3}, {}).ticks(), (QList<qreal>{80, 160}));
    }

private:
    /// 800 wide, with the total at three quarters.
    BandMeterLayout &laidOut(const QList<qreal> &thresholds, const QList<qreal> &labelWidths)
    {
        m_layout.setProperty("width", 800);
        m_layout.setProperty("position", 0.75);
        m_layout.setProperty("thresholds", QVariant::fromValue(thresholds));
        m_layout.setProperty("labelWidths", QVariant::fromValue(labelWidths));
        return m_layout;
    }

    static void allMeters()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<double>("width");
        for (const qint64 total : {qint64(-5), qint64(0), qint64(1), qint64(29'999), qint64(60'001),
                                   qint64(90'000), qint64(142'318), qint64(200'000),
                                   qint64(1'000'000), qint64(9'000'000), qint64(largest)}) {
            for (const double width : {0.0, 1.0, 5.0, 12.0, 40.0, 100.0, 133.0, 628.0, 1008.0})
                QTest::addRow("%lld on %g", total, width) << total << width;
        }
    }

    static Meter fetched()
    {
        QFETCH(const qint64, total);
        QFETCH(const double, width);
        return meterOf(total, width);
    }

    BandMeterLayout m_layout;
};

const RegisteredTest<BandMeterGeometryTest> registered("BandMeterGeometry");

} // namespace Loadwick

#include "BandMeterGeometryTest.moc"
