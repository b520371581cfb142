#include "charts/DonutGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

constexpr double turn = 2.0 * std::numbers::pi;
constexpr double radius = 110.0;

using Tokens = std::vector<double>;

} // namespace

class DonutGeometryPaintingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insetsTheEdgesByOneAndAHalfPoints();
    void theInsetTakesHalfOfANarrowSliceAtMost();
    void theWholeRingHasNoGap();
    void everySectorIsPainted_data();
    void everySectorIsPainted();
    void othersAreDimmedWhileOneIsSelected();
    void wideSlicesArePaintedEachForItself();
    void paintsNoMoreThanCanBeToldApart();
    void theSelectedSliceIsAlwaysPaintedForItself();
};

void DonutGeometryPaintingTest::insetsTheEdgesByOneAndAHalfPoints()
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

void DonutGeometryPaintingTest::theInsetTakesHalfOfANarrowSliceAtMost()
{
    const DonutGeometry donut(Tokens{1.0, 9'999.0});
    const auto sector = donut.sector(0, radius);
    const double sweep = donut.slices()[0].sweep;
    QVERIFY(std::abs(sector.innerSweep - sweep / 2) < 1e-9);
    QVERIFY(sector.outerSweep > sweep / 2 && sector.outerSweep < sweep);
}

void DonutGeometryPaintingTest::theWholeRingHasNoGap()
{
    const auto sector = DonutGeometry(Tokens{0.0, 42'000.0}).sector(0, radius);
    QCOMPARE(sector.outerSweep, turn);
    QCOMPARE(sector.innerSweep, turn);
}

void DonutGeometryPaintingTest::everySectorIsPainted_data()
{
    QTest::addColumn<Tokens>("tokens");
    QTest::newRow("one row") << Tokens{42'000.0};
    QTest::newRow("two very unequal rows") << Tokens{1e15, 1.0};
    QTest::newRow("zeros between") << Tokens{0.0, 3.0, 0.0, 0.0, 7.0, 0.0};
    QTest::newRow("8,000 equal rows") << Tokens(8'000, 3.0);
}

void DonutGeometryPaintingTest::everySectorIsPainted()
{
    QFETCH(const Tokens, tokens);
    const DonutGeometry donut(tokens);
    for (std::size_t index = 0; index < donut.slices().size(); ++index) {
        const auto sector = donut.sector(index, radius);
        const auto &slice = donut.slices()[index];
        QVERIFY(sector.outerSweep >= 0.0 && sector.innerSweep >= 0.0);
        QVERIFY(sector.outerSweep <= slice.sweep && sector.innerSweep <= sector.outerSweep + 1e-12);
        QVERIFY(sector.outerStart >= slice.start);
    }
}

void DonutGeometryPaintingTest::othersAreDimmedWhileOneIsSelected()
{
    QCOMPARE(DonutGeometry::opacity(2, std::nullopt), 1.0);
    QCOMPARE(DonutGeometry::opacity(2, 2), 1.0);
    QCOMPARE(DonutGeometry::opacity(2, 1), 0.35);
}

void DonutGeometryPaintingTest::wideSlicesArePaintedEachForItself()
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

void DonutGeometryPaintingTest::paintsNoMoreThanCanBeToldApart()
{
    const auto marks = DonutGeometry(Tokens(8'000, 3.0)).marks(radius, std::nullopt);
    QVERIFY(marks.size() <= 1'400U);
    double end = 0.0;
    for (const auto &mark : marks) {
        QVERIFY(mark.sector.outerStart > end && mark.sector.outerStart - end < 0.01);
        QVERIFY(mark.sector.outerSweep > 0.0);
        end = mark.sector.outerStart + mark.sector.outerSweep;
    }
    QVERIFY(turn - end < 0.01);
}

void DonutGeometryPaintingTest::theSelectedSliceIsAlwaysPaintedForItself()
{
    const DonutGeometry donut(Tokens(8'000, 3.0));
    for (const std::size_t selected : {std::size_t(0), std::size_t(4'321), std::size_t(7'999)}) {
        const auto marks = donut.marks(radius, selected);
        const auto own = std::ranges::find(marks, selected, &DonutGeometry::Mark::slice);
        QVERIFY(own != marks.end());
        QCOMPARE(own->opacity, 1.0);
        QCOMPARE(own->sector.outerSweep, donut.sector(selected, radius).outerSweep);
        QCOMPARE(std::ranges::count(marks, 1.0, &DonutGeometry::Mark::opacity), 1);
    }
}

const RegisteredTest<DonutGeometryPaintingTest> registered("DonutGeometryPainting");

} // namespace Loadwick

#include "DonutGeometryPaintingTest.moc"
