#include "charts/DonutChart.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

constexpr double turn = 2.0 * std::numbers::pi;
constexpr double radius = 110.0;

using Tokens = std::vector<double>;

// Tokens as reports have them: a few large rows, many small ones, some without any.
Tokens randomTokens(std::size_t count, unsigned seed)
{
    std::mt19937 generator(seed);
    std::lognormal_distribution<double> tokens(5.0, 3.0);
    Tokens rows(count);
    for (double &row : rows)
        row = std::floor(tokens(generator));
    return rows;
}

double sumOfSweeps(const DonutGeometry &donut)
{
    double sum = 0.0;
    for (const auto &slice : donut.slices())
        sum += slice.sweep;
    return sum;
}

struct Point
{
    double x;
    double y;
};

// Clockwise from the top, as a share of the outer radius.
Point pointAt(double angle, double distance)
{
    return {std::sin(angle) * distance * radius, -std::cos(angle) * distance * radius};
}

std::optional<std::size_t> hit(const DonutGeometry &donut, double angle, double distance)
{
    const Point at = pointAt(angle, distance);
    return donut.sliceAt(at.x, at.y, radius);
}

} // namespace

class DonutGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dividesATurnByTokensFromTheTop()
    {
        const DonutGeometry donut(Tokens{50.0, 25.0, 25.0});
        QCOMPARE(donut.slices().size(), 3U);
        QCOMPARE(donut.slices()[0].start, 0.0);
        QCOMPARE(donut.slices()[0].sweep, turn / 2);
        QCOMPARE(donut.slices()[1].start, turn / 2);
        QCOMPARE(donut.slices()[2].start, turn * 3 / 4);
        QCOMPARE(donut.slices()[2].sweep, turn / 4);
    }

    void sliceAnglesSumToATurn_data()
    {
        QTest::addColumn<Tokens>("tokens");
        QTest::newRow("one row") << Tokens{42'000.0};
        QTest::newRow("two very unequal rows") << Tokens{1e15, 1.0};
        QTest::newRow("zeros between") << Tokens{0.0, 3.0, 0.0, 0.0, 7.0, 0.0};
        for (const unsigned seed : {1U, 2U, 3U, 4U, 5U})
            QTest::addRow("40 rows, seed %u", seed) << randomTokens(40, seed);
        QTest::newRow("8,000 rows") << randomTokens(8'000, 6);
        QTest::newRow("8,000 equal rows") << Tokens(8'000, 3.0);
    }

    void sliceAnglesSumToATurn()
    {
        QFETCH(const Tokens, tokens);
        QVERIFY(std::abs(sumOfSweeps(DonutGeometry(tokens)) - turn) < 1e-9);
    }

    void slicesFollowEachOther_data() { sliceAnglesSumToATurn_data(); }
    void slicesFollowEachOther()
    {
        QFETCH(const Tokens, tokens);
        const DonutGeometry donut(tokens);
        double end = 0.0;
        for (const auto &slice : donut.slices()) {
            QVERIFY(std::abs(slice.start - end) < 1e-9);
            QVERIFY(slice.sweep >= 0.0);
            end = slice.start + slice.sweep;
        }
    }

    void anglesAreTheSharesOfTheTokens()
    {
        const Tokens tokens = randomTokens(300, 7);
        const DonutGeometry donut(tokens);
        const double sum = donut.slices().back().upperBound;
        for (const auto &slice : donut.slices())
            QVERIFY(std::abs(slice.sweep - turn * tokens[slice.row] / sum) < 1e-9);
    }

    void rowsWithoutTokensHaveNoSlice()
    {
        const DonutGeometry donut(Tokens{0.0, 3.0, 0.0, -5.0, 1.0});
        QCOMPARE(donut.slices().size(), 2U);
        QCOMPARE(donut.slices()[0].row, 1U);
        QCOMPARE(donut.slices()[1].row, 4U);
        QCOMPARE(donut.slices()[1].start, turn * 3 / 4);
    }

    void hasNoSlicesWithoutTokens()
    {
        QVERIFY(DonutGeometry(Tokens{0.0, 0.0, 0.0}).slices().empty());
        QVERIFY(DonutGeometry(Tokens{}).slices().empty());
    }

    void upperBoundsAreRunningSums()
    {
        const DonutGeometry donut(Tokens{5.0, 0.0, 3.0, 2.0});
        QCOMPARE(donut.slices()[0].upperBound, 5.0);
        QCOMPARE(donut.slices()[1].upperBound, 8.0);
        QCOMPARE(donut.slices()[2].upperBound, 10.0);
    }

    void selectsTheFirstSliceWhoseUpperBoundIsAtLeastTheValue_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<std::size_t>("slice");
        QTest::newRow("the start") << 0.0 << std::size_t(0);
        QTest::newRow("the first") << 1.0 << std::size_t(0);
        QTest::newRow("its bound") << 5.0 << std::size_t(0);
        QTest::newRow("just beyond it") << 5.5 << std::size_t(1);
        QTest::newRow("the second's bound") << 8.0 << std::size_t(1);
        QTest::newRow("the end") << 10.0 << std::size_t(2);
        QTest::newRow("beyond the end") << 11.0 << std::size_t(2);
    }

    void selectsTheFirstSliceWhoseUpperBoundIsAtLeastTheValue()
    {
        QFETCH(const double, value);
        QFETCH(const std::size_t, slice);
        QCOMPARE(DonutGeometry(Tokens{5.0, 3.0, 2.0}).sliceAtTokens(value), std::optional(slice));
    }

    void findsNothingWithoutSlices()
    {
        QVERIFY(!DonutGeometry().sliceAtTokens(0.0));
        QVERIFY(!hit(DonutGeometry(Tokens{0.0}), 1.0, 0.8));
    }

    void findsEachSliceAtItsMiddle_data() { sliceAnglesSumToATurn_data(); }
    void findsEachSliceAtItsMiddle()
    {
        QFETCH(const Tokens, tokens);
        const DonutGeometry donut(tokens);
        for (std::size_t index = 0; index < donut.slices().size(); ++index) {
            const auto &slice = donut.slices()[index];
            // Narrower than that, neighbours cannot be told apart at the precision of an angle.
            if (slice.sweep > 1e-12)
                QCOMPARE(hit(donut, slice.start + slice.sweep / 2, 0.8), std::optional(index));
        }
    }

    void onlyTheRingIsHit()
    {
        const DonutGeometry donut(Tokens{1.0, 1.0});
        QCOMPARE(hit(donut, turn / 4, 0.63), std::optional<std::size_t>(0));
        QCOMPARE(hit(donut, turn / 4, 0.99), std::optional<std::size_t>(0));
        QCOMPARE(hit(donut, turn * 3 / 4, 0.99), std::optional<std::size_t>(1));
        QVERIFY(!hit(donut, turn / 4, 0.61));
        QVERIFY(!hit(donut, turn / 4, 0.0));
        QVERIFY(!hit(donut, turn / 4, 1.01));
    }

    void insetsTheEdgesByOneAndAHalfPoints()
    {
        const DonutGeometry donut(Tokens{1.0, 1.0, 2.0});
        const auto sector = donut.sector(1, radius);
        const auto &slice = donut.slices()[1];
        const double inner = radius * 0.62;
        // The distance of a corner from the line through the centre that bounds the slice.
        QCOMPARE(radius * std::sin(sector.outerStart - slice.start), 1.5);
        QCOMPARE(inner * std::sin(sector.innerStart - slice.start), 1.5);
        const double end = slice.start + slice.sweep;
        QCOMPARE(radius * std::sin(end - sector.outerStart - sector.outerSweep), 1.5);
        QCOMPARE(inner * std::sin(end - sector.innerStart - sector.innerSweep), 1.5);
    }

    void theInsetTakesAtMostHalfOfANarrowSlice()
    {
        const DonutGeometry donut(Tokens{1.0, 9'999.0});
        const auto sector = donut.sector(0, radius);
        const double sweep = donut.slices()[0].sweep;
        QVERIFY(std::abs(sector.innerSweep - sweep / 2) < 1e-9);
        QVERIFY(sector.outerSweep > sweep / 2 && sector.outerSweep < sweep);
    }

    void theWholeRingHasNoGap()
    {
        const auto sector = DonutGeometry(Tokens{0.0, 42'000.0}).sector(0, radius);
        QCOMPARE(sector.outerSweep, turn);
        QCOMPARE(sector.innerSweep, turn);
    }

    void everySectorIsPainted_data()
    {
        QTest::addColumn<Tokens>("tokens");
        QTest::newRow("one row") << Tokens{42'000.0};
        QTest::newRow("two very unequal rows") << Tokens{1e15, 1.0};
        QTest::newRow("zeros between") << Tokens{0.0, 3.0, 0.0, 0.0, 7.0, 0.0};
        QTest::newRow("8,000 equal rows") << Tokens(8'000, 3.0);
    }

    void everySectorIsPainted()
    {
        QFETCH(const Tokens, tokens);
        const DonutGeometry donut(tokens);
        for (std::size_t index = 0; index < donut.slices().size(); ++index) {
            const auto sector = donut.sector(index, radius);
            const auto &slice = donut.slices()[index];
            QVERIFY(sector.outerSweep >= 0.0 && sector.innerSweep >= 0.0);
            QVERIFY(sector.outerSweep <= slice.sweep &&
                    sector.innerSweep <= sector.outerSweep + 1e-12);
            QVERIFY(sector.outerStart >= slice.start);
        }
    }

    void eachWideSliceHasItsOwnMark()
    {
        const DonutGeometry donut(Tokens{50.0, 0.0, 25.0, 25.0});
        const auto marks = donut.marks(radius, 1);
        QCOMPARE(marks.size(), 3U);
        for (std::size_t index = 0; index < marks.size(); ++index) {
            QCOMPARE(marks[index].slice, index);
            QCOMPARE(marks[index].sector.outerStart, donut.sector(index, radius).outerStart);
            QCOMPARE(marks[index].opacity, index == 1 ? 1.0 : 0.35);
        }
    }

    void mergesIndistinguishableMarks()
    {
        const auto marks = DonutGeometry(Tokens(8'000, 3.0)).marks(radius, std::nullopt);
        QVERIFY(marks.size() <= 1'400U);
        double end = 0.0;
        for (const auto &mark : marks) {
            QVERIFY(mark.sector.outerStart > end && mark.sector.outerStart - end < 0.01);
            QVERIFY(mark.sector.outerSweep > 0.0);
            QCOMPARE(mark.opacity, 1.0);
            end = mark.sector.outerStart + mark.sector.outerSweep;
        }
        QVERIFY(turn - end < 0.01);
    }

    void theSelectedSliceAlwaysHasItsOwnMark()
    {
        const DonutGeometry donut(Tokens(8'000, 3.0));
        for (const std::size_t selected :
             {std::size_t(0), std::size_t(4'321), std::size_t(7'999)}) {
            const auto marks = donut.marks(radius, selected);
            const auto own = std::ranges::find(marks, selected, &DonutGeometry::Mark::slice);
            QVERIFY(own != marks.end());
            QCOMPARE(own->opacity, 1.0);
            QCOMPARE(own->sector.outerSweep, donut.sector(selected, radius).outerSweep);
            QCOMPARE(std::ranges::count(marks, 1.0, &DonutGeometry::Mark::opacity), 1);
        }
    }
};

const RegisteredTest<DonutGeometryTest> registered("DonutGeometry");

} // namespace Loadwick

#include "DonutGeometryTest.moc"
