#include "theme/Springs.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

struct Motion
{
    double position;
    double speed;
};

Motion slopeOf(const Spring &spring, const Motion &motion)
{
    const double frequency = 2 * std::numbers::pi / spring.response;
    return {motion.speed, -2 * spring.dampingFraction * frequency * motion.speed -
                              frequency * frequency * (motion.position - 1)};
}

Motion moved(const Motion &motion, const Motion &slope, double seconds)
{
    return {motion.position + slope.position * seconds, motion.speed + slope.speed * seconds};
}

/// One step of the classical Runge-Kutta method: it knows the equation, not its solution.
Motion stepped(const Spring &spring, const Motion &motion, double seconds)
{
    const Motion a = slopeOf(spring, motion);
    const Motion b = slopeOf(spring, moved(motion, a, seconds / 2));
    const Motion c = slopeOf(spring, moved(motion, b, seconds / 2));
    const Motion d = slopeOf(spring, moved(motion, c, seconds));
    return {motion.position +
                seconds / 6 * (a.position + 2 * b.position + 2 * c.position + d.position),
            motion.speed + seconds / 6 * (a.speed + 2 * b.speed + 2 * c.speed + d.speed)};
}

} // namespace

class SpringsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void satisfiesTheOscillatorEquation_data() { rows(); }
    void satisfiesTheOscillatorEquation()
    {
        const Spring spring = fetched();
        constexpr double step = 0.001;
        Motion motion{.position = 0, .speed = 0};
        for (int i = 1; i <= 1500; ++i) {
            motion = stepped(spring, motion, step);
            QVERIFY(std::abs(spring.valueAt(i * step) - motion.position) < 1e-8);
        }
    }

    void startsAtRest_data() { rows(); }
    void startsAtRest()
    {
        const Spring spring = fetched();
        QVERIFY(std::abs(spring.valueAt(0)) < 1e-15);
        QVERIFY(std::abs(spring.valueAt(1e-6)) < 1e-9);
    }

    void staysStillOnceSettled_data() { rows(); }
    void staysStillOnceSettled()
    {
        const Spring spring = fetched();
        const double settled = spring.settlingSeconds();
        for (double seconds = settled; seconds < 3 * settled; seconds += 0.001)
            QVERIFY(std::abs(spring.valueAt(seconds) - 1) <= 0.001);
    }

    void overshootsAsItsDampingAllows_data() { rows(); }
    void overshootsAsItsDampingAllows()
    {
        const Spring spring = fetched();
        double highest = 0;
        for (double seconds = 0; seconds < 4; seconds += 0.0001)
            highest = std::max(highest, spring.valueAt(seconds));
        const double z = spring.dampingFraction;
        const double overshoot = std::exp(-std::numbers::pi * z / std::sqrt(1 - z * z));
        QVERIFY(std::abs(highest - 1 - overshoot) < 1e-6);
    }

    void durationsLastUntilTheSpringRests()
    {
        QCOMPARE(Springs().meterDuration, 848);
        QCOMPARE(Springs().donutDuration, 797);
        QCOMPARE(Springs().stepDotDuration, 757);
    }

    void curvesFollowTheirSprings()
    {
        follows(Springs().meter, {.response = 0.6, .dampingFraction = 0.85});
        follows(Springs().donut, {.response = 0.55, .dampingFraction = 0.82});
        follows(Springs().stepDot, {.response = 0.4, .dampingFraction = 0.6});
    }

    void curvesEndExactlyWhereTheyShould()
    {
        const Springs springs;
        for (const QEasingCurve &curve : {springs.meter, springs.donut, springs.stepDot})
            QCOMPARE(curve.valueForProgress(1), 1.0);
    }

private:
    static void rows()
    {
        QTest::addColumn<double>("response");
        QTest::addColumn<double>("dampingFraction");
        QTest::newRow("meter") << 0.6 << 0.85;
        QTest::newRow("donut") << 0.55 << 0.82;
        QTest::newRow("loose") << 0.4 << 0.2;
        QTest::newRow("nearly critical") << 1.0 << 0.99;
    }

    static void follows(const QEasingCurve &curve, const Spring &spring)
    {
        for (int i = 0; i < 100; ++i) {
            const double progress = i / 100.0;
            const double expected = spring.valueAt(progress * spring.settlingSeconds());
            QVERIFY(std::abs(curve.valueForProgress(progress) - expected) < 1e-9);
        }
    }

    static Spring fetched()
    {
        QFETCH(const double, response);
        QFETCH(const double, dampingFraction);
        return {.response = response, .dampingFraction = dampingFraction};
    }
};

const RegisteredTest<SpringsTest> registered("Springs");

} // namespace Loadwick

#include "SpringsTest.moc"
