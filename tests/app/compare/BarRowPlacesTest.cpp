#include "compare/BarRowPlaces.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

constexpr QSizeF stackedRow(300, 36);
constexpr QSizeF lineRow(800, 24);

} // namespace

class BarRowPlacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameAndFigureStandOverABarOfFullWidth()
    {
        const auto places = BarRowPlaces::stacked(stackedRow, 16, 40, 1);
        QCOMPARE(places.track, QRectF(0, 24, 300, 8));
        QCOMPARE(places.bar, places.track);
        QCOMPARE(places.value, QRectF(260, 6, 40, 16));
        QCOMPARE(places.name, QRectF(0, 6, 252, 16));
    }

    void aWideFigureLeavesTheNameWhatIsLeft()
    {
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 296, 1).name.width(), 0.0);
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 296, 1).value.left(), 4.0);
    }

    void onOneLineTheFiguresOfAllRowsEndTogether()
    {
        const auto places = BarRowPlaces::inLine(lineRow, 200, 60, 0.5);
        QCOMPARE(places.name, QRectF(0, 0, 200, 24));
        QCOMPARE(places.value, QRectF(740, 0, 60, 24));
        QCOMPARE(places.track, QRectF(212, 8, 516, 8));
        QCOMPARE(places.bar, QRectF(212, 8, 258, 8));
    }

    void aNarrowRowHasNoTrackRatherThanANegativeOne()
    {
        const auto places = BarRowPlaces::inLine({120, 24}, 100, 60, 1);
        QCOMPARE(places.track.width(), 0.0);
        QCOMPARE(places.bar.width(), 0.0);
    }

    void noTokensHaveNoBarAndFewHaveOneThatCanBeSeen()
    {
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 40, 0).bar.width(), 0.0);
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 40, 0.00001).bar.width(), 2.0);
    }

    void equalTokensAreEquallyLong()
    {
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 40, 0.3).bar,
                 BarRowPlaces::stacked(stackedRow, 16, 90, 0.3).bar);
    }

    void aHeadingStandsLowAndAlone()
    {
        const auto places = BarRowPlaces::heading(lineRow, 18);
        QCOMPARE(places.name, QRectF(0, 4, 800, 18));
        QVERIFY(places.track.isEmpty());
        QVERIFY(places.value.isEmpty());
    }

    void fromTheRightAllIsTheOtherWayRound()
    {
        const auto places = BarRowPlaces::inLine(lineRow, 200, 60, 0.5).mirrored(800);
        QCOMPARE(places.name, QRectF(600, 0, 200, 24));
        QCOMPARE(places.value, QRectF(0, 0, 60, 24));
        QCOMPARE(places.track, QRectF(72, 8, 516, 8));
        QCOMPARE(places.bar, QRectF(330, 8, 258, 8));
    }
};

const RegisteredTest<BarRowPlacesTest> registered("BarRowPlaces");

} // namespace Loadwick

#include "BarRowPlacesTest.moc"
