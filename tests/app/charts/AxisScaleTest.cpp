#include "charts/AxisScale.h"

#include <limits>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

using Ticks = std::vector<std::int64_t>;

class AxisScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreOneTwoOrFiveTimesAPowerOfTen()
    {
        QCOMPARE(AxisScale(69'000, 4).ticks(), (Ticks{0, 20'000, 40'000, 60'000}));
        QCOMPARE(AxisScale(115'000, 4).ticks(), (Ticks{0, 50'000, 100'000}));
        QCOMPARE(AxisScale(207'000, 4).step(), 100'000);
        QCOMPARE(AxisScale(10'350'000, 4).step(), 5'000'000);
        QCOMPARE(AxisScale(100, 5).step(), 20);
        QCOMPARE(AxisScale(101, 5).step(), 50);
    }

    void theUpperBoundIsATickWhenItIsRound()
    {
        QCOMPARE(AxisScale(40, 4).ticks(), (Ticks{0, 10, 20, 30, 40}));
    }

    void aTinyAxisHasWholeSteps()
    {
        QCOMPARE(AxisScale(3, 4).ticks(), (Ticks{0, 1, 2, 3}));
        QCOMPARE(AxisScale(1, 4).ticks(), (Ticks{0, 1}));
    }

    void anAxisWithoutLengthIsOneLong()
    {
        QCOMPARE(AxisScale(0, 4).ticks(), (Ticks{0, 1}));
        QCOMPARE(AxisScale(-7, 0).upperBound(), 1);
    }

    void theLargestAxisHasTicksThatFit()
    {
        constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
        const Ticks ticks = AxisScale(largest, 4).ticks();
        QCOMPARE(ticks.front(), 0);
        QVERIFY(ticks.size() >= 2);
        QVERIFY(std::is_sorted(ticks.begin(), ticks.end()));
        QVERIFY(AxisScale(largest, 1).ticks().back() <= largest);
    }

    void neverHasMoreStepsThanAskedFor()
    {
        for (std::int64_t upper = 1; upper < 5'000; upper += 7)
            for (const int most : {1, 2, 3, 4, 7}) {
                const Ticks ticks = AxisScale(upper, most).ticks();
                QVERIFY(static_cast<int>(ticks.size()) <= most + 1);
                QVERIFY(ticks.back() <= upper);
            }
    }

    void placesValuesBetweenItsEnds()
    {
        const AxisScale axis(200, 4);
        QCOMPARE(axis.position(0), 0.0);
        QCOMPARE(axis.position(50), 0.25);
        QCOMPARE(axis.position(200), 1.0);
        QCOMPARE(axis.position(-5), 0.0);
        QCOMPARE(axis.position(201), 1.0);
    }
};

const RegisteredTest<AxisScaleTest> registered("AxisScale");

} // namespace Loadwick

#include "AxisScaleTest.moc"
