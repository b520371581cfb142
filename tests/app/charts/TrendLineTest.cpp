#include "charts/TrendLine.h"

#include <limits>

#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {

using std::chrono::seconds;
using std::chrono::sys_seconds;

class TrendLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoPointsWithoutScans()
    {
        const LineGeometry line({});
        QVERIFY(line.points().empty());
        QCOMPARE(line.upperBound(), 69'000);
        QVERIFY(!line.nearest({.x = 0.5, .y = 0.5}));
    }

    void theUpperEdgeFollowsTheLargestTotal_data()
    {
        QTest::addColumn<qint64>("total");
        QTest::addColumn<qint64>("upperBound");
        const auto row = [](qint64 total, qint64 upperBound) {
            QTest::addRow("%lld", static_cast<long long>(total)) << total << upperBound;
        };
        row(0, 69'000);
        row(3, 69'000);
        row(60'000, 69'000);
        row(60'001, 69'001);
        row(100'000, 115'000);
        row(180'000, 207'000);
        row(9'000'000, 10'350'000);
        row(100'013, 115'014);
        row(std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::max());
        row(8'000'000'000'000'000'000, 9'200'000'000'000'000'000);
        row(-5, 69'000);
    }

    void theUpperEdgeFollowsTheLargestTotal()
    {
        QFETCH(const qint64, total);
        QFETCH(const qint64, upperBound);
        QCOMPARE(lineOf({{0, 1}, {1, total}}).upperBound(), upperBound);
    }

    void spreadsDatesFromTheLeftToTheRightEdge()
    {
        const LineGeometry line = lineOf({{100, 0}, {125, 69'000}, {200, 34'500}});
        QCOMPARE(line.points()[0], (LinePoint{.x = 0, .y = 0}));
        QCOMPARE(line.points()[1].x, 0.25);
        QCOMPARE(line.points()[2].x, 1.0);
        QCOMPARE(line.upperBound(), 79'350);
        QCOMPARE(line.points()[1].y, 69'000.0 / 79'350);
    }

    void ordersScansByDate()
    {
        const LineGeometry line = lineOf({{30, 1}, {10, 2}, {20, 3}});
        QCOMPARE(totalsOf(line), (std::vector<std::int64_t>{2, 3, 1}));
        QVERIFY(line.points()[0].x < line.points()[1].x);
        QVERIFY(line.points()[1].x < line.points()[2].x);
    }

    void scansOfOneSecondKeepTheirOrder()
    {
        const LineGeometry line = lineOf({{10, 5}, {10, 3}, {0, 1}, {10, 4}});
        QCOMPARE(totalsOf(line), (std::vector<std::int64_t>{1, 5, 3, 4}));
        QCOMPARE(line.points()[1].x, line.points()[3].x);
    }

    void scansOfASingleSecondAreInTheMiddle()
    {
        const LineGeometry line = lineOf({{10, 5}, {10, 3}});
        QCOMPARE(line.points()[0].x, 0.5);
        QCOMPARE(line.points()[1].x, 0.5);
    }

    void equalTotalsMakeALevelLine()
    {
        const LineGeometry line = lineOf({{0, 27'654}, {5, 27'654}, {9, 27'654}});
        QCOMPARE(line.points()[0].y, line.points()[1].y);
        QCOMPARE(line.points()[1].y, line.points()[2].y);
    }

    void staysInThePlotForAnyTotals()
    {
        constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
        const LineGeometry line = lineOf({{0, -5}, {1, largest}, {2, 0}});
        for (const LinePoint &point : line.points()) {
            QVERIFY(point.x >= 0 && point.x <= 1);
            QVERIFY(point.y >= 0 && point.y <= 1);
        }
    }

    void noPointComesNearTheUpperEdge()
    {
        for (const std::int64_t total : {1, 59'999, 60'000, 60'001, 100'000, 9'000'000}) {
            const LineGeometry line = lineOf({{0, 0}, {1, total}});
            QVERIFY(line.points()[1].y <= 1 / 1.149);
        }
    }

    void findsTheScanNearestInTime()
    {
        const LineGeometry line = lineOf({{0, 1}, {10, 60'000}, {100, 1}});
        QCOMPARE(line.nearest({.x = 0.04, .y = 0.9}), std::size_t(0));
        QCOMPARE(line.nearest({.x = 0.06, .y = 0.0}), std::size_t(1));
        QCOMPARE(line.nearest({.x = 0.54, .y = 0.9}), std::size_t(1));
        QCOMPARE(line.nearest({.x = 0.56, .y = 0.9}), std::size_t(2));
        QCOMPARE(line.nearest({.x = 9.0, .y = 0.9}), std::size_t(2));
        QCOMPARE(line.nearest({.x = -9.0, .y = 0.9}), std::size_t(0));
    }

    void findsTheEarlierScanAtTheMidpoint()
    {
        const LineGeometry line = lineOf({{0, 1}, {100, 1}});
        QCOMPARE(line.nearest({.x = 0.5, .y = 0.0}), std::size_t(0));
    }

    void findsTheNearestTotalAmongScansOfOneSecond()
    {
        const LineGeometry line = lineOf({{10, 5'000}, {10, 60'000}});
        QCOMPARE(line.nearest({.x = 0.1, .y = 0.1}), std::size_t(0));
        QCOMPARE(line.nearest({.x = 0.1, .y = 0.8}), std::size_t(1));
    }

    void aScanFarFromTheOthersLeavesThemOrdered()
    {
        const LineGeometry line = lineOf({{0, 1}, {1'772'615'727, 2}, {1'772'615'728, 3}});
        QCOMPARE(line.points()[0].x, 0.0);
        QVERIFY(line.points()[1].x < line.points()[2].x);
        QCOMPARE(line.points()[2].x, 1.0);
    }

    void describesAScanByDateAndTotal()
    {
        const TimeZone utc("UTC");
        TrendLine line({.numbers = "de_DE", .dates = "de_DE"});
        line.setSamples(std::vector<LineSample>{{.date = morning, .total = 27'654}});
        QCOMPARE(line.date(0), QStringLiteral("4. März 2026, 09:15"));
        QCOMPARE(line.total(0), QStringLiteral("27.654 tokens"));
    }

    void countsItsScansByDate()
    {
        TrendLine line{TextLocale()};
        line.setSamples(std::vector<LineSample>{
            {.date = morning + std::chrono::hours(1), .total = 2}, {.date = morning, .total = 1}});
        QCOMPARE(line.total(0), QStringLiteral("1 tokens"));
        QCOMPARE(line.total(1), QStringLiteral("2 tokens"));
    }

    void signalsOnlyNewScans()
    {
        TrendLine line{TextLocale()};
        QSignalSpy changed(&line, &TrendLine::changed);
        const std::vector<LineSample> samples = {{.date = morning, .total = 1}};
        line.setSamples(samples);
        QCOMPARE(changed.count(), 1);
        line.setSamples(samples);
        QCOMPARE(changed.count(), 1);
        line.setSamples({});
        QCOMPARE(changed.count(), 2);
    }

private:
    static constexpr sys_seconds morning{seconds(1'772'615'727)};

    struct Given
    {
        std::int64_t second;
        std::int64_t total;
    };

    static LineGeometry lineOf(const std::vector<Given> &given)
    {
        std::vector<LineSample> samples;
        for (const Given &one : given)
            samples.push_back({.date = sys_seconds(seconds(one.second)), .total = one.total});
        return LineGeometry(samples);
    }

    static std::vector<std::int64_t> totalsOf(const LineGeometry &line)
    {
        std::vector<std::int64_t> totals;
        for (const LineSample &sample : line.samples())
            totals.push_back(sample.total);
        return totals;
    }
};

const RegisteredTest<TrendLineTest> registered("TrendLine");

} // namespace Loadwick

#include "TrendLineTest.moc"
