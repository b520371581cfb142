#include "theme/Spring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

struct Motion
{
    double place;
    double speed;
};

Motion slopeOf(const Spring &spring, const Motion &motion)
{
    const double frequency = 2 * std::numbers::pi / spring.response;
    return {motion.speed, -2 * spring.dampingFraction * frequency * motion.speed -
                              frequency * frequency * (motion.place - 1)};
}

Motion moved(const Motion &motion, const Motion &slope, double seconds)
{
    return {motion.place + slope.place * seconds, motion.speed + slope.speed * seconds};
}

/// One step of the classical Runge-Kutta method: it knows the equation, not its solution.
Motion stepped(const Spring &spring, const Motion &motion, double seconds)
{
    const Motion a = slopeOf(spring, motion);
    const Motion b = slopeOf(spring, moved(motion, a, seconds / 2));
    const Motion c = slopeOf(spring, moved(motion, b, seconds / 2));
    const Motion d = slopeOf(spring, moved(motion, c, seconds));
    return {motion.place + seconds / 6 * (a.place + 2 * b.place + 2 * c.place + d.place),
            motion.speed + seconds / 6 * (a.speed + 2 * b.speed + 2 * c.speed + d.speed)};
}

} // namespace

class SpringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void obeysTheEquationOfTheOscillator_data() { springs(); }
    void obeysTheEquationOfTheOscillator()
    {
        const Spring spring = fetched();
        constexpr double step = 0.001;
        Motion motion{.place = 0, .speed = 0};
        for (int i = 1; i <= 1500; ++i) {
            motion = stepped(spring, motion, step);
            QVERIFY(std::abs(spring.valueAt(i * step) - motion.place) < 1e-8);
        }
    }

    void startsAtRest_data() { springs(); }
    void startsAtRest()
    {
        const Spring spring = fetched();
        QVERIFY(std::abs(spring.valueAt(0)) < 1e-15);
        QVERIFY(std::abs(spring.valueAt(1e-6)) < 1e-9);
    }

    void keepsStillOnceItHasSettled_data() { springs(); }
    void keepsStillOnceItHasSettled()
    {
        const Spring spring = fetched();
        const double settled = spring.settlingSeconds();
        for (double seconds = settled; seconds < 3 * settled; seconds += 0.001)
            QVERIFY(std::abs(spring.valueAt(seconds) - 1) <= 0.001);
    }

    void swingsBeyondItsEndAsFarAsItsDampingLets_data() { springs(); }
    void swingsBeyondItsEndAsFarAsItsDampingLets()
    {
        const Spring spring = fetched();
        double highest = 0;
        for (double seconds = 0; seconds < 4; seconds += 0.0001)
            highest = std::max(highest, spring.valueAt(seconds));
        const double z = spring.dampingFraction;
        const double overshoot = std::exp(-std::numbers::pi * z / std::sqrt(1 - z * z));
        QVERIFY(std::abs(highest - 1 - overshoot) < 1e-6);
    }

    void theMeterSettlesInEightHundredAndFiftyMilliseconds()
    {
        constexpr Spring spring{.response = 0.6, .dampingFraction = 0.85};
        QVERIFY(std::abs(spring.settlingSeconds() - 0.848) < 0.0005);
    }

private:
    static void springs()
    {
        QTest::addColumn<double>("response");
        QTest::addColumn<double>("dampingFraction");
        QTest::newRow("meter") << 0.6 << 0.85;
        QTest::newRow("donut") << 0.55 << 0.82;
        QTest::newRow("loose") << 0.4 << 0.2;
        QTest::newRow("nearly critical") << 1.0 << 0.99;
    }

    static Spring fetched()
    {
        QFETCH(const double, response);
        QFETCH(const double, dampingFraction);
        return {.response = response, .dampingFraction = dampingFraction};
    }
};

const RegisteredTest<SpringTest> registered("Spring");

} // namespace Loadwick

#include "SpringTest.moc"
