#include "theme/Springs.h"

#include <algorithm>
#include <cmath>

#include <QTest>

#include "support/TestRegistry.h"
#include "theme/Spring.h"

namespace Loadwick {

class SpringsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void durationsLastUntilTheSpringRests()
    {
        QCOMPARE(Springs().meterDuration(), 848);
        QCOMPARE(Springs().donutDuration(), 797);
        QCOMPARE(Springs().stepDotDuration(), 757);
    }

    void curvesFollowTheirSprings()
    {
        follows(Springs().meter(), {.response = 0.6, .dampingFraction = 0.85});
        follows(Springs().donut(), {.response = 0.55, .dampingFraction = 0.82});
        follows(Springs().stepDot(), {.response = 0.4, .dampingFraction = 0.6});
    }

    void curvesEndExactlyWhereTheyShould()
    {
        QCOMPARE(Springs().meter().valueForProgress(1), 1.0);
        QCOMPARE(Springs().donut().valueForProgress(1), 1.0);
        QCOMPARE(Springs().stepDot().valueForProgress(1), 1.0);
    }

    void curvesSwingALittleBeyondTheirEnd()
    {
        const double overshoot = highest(Springs().meter()) - 1;
        QVERIFY(overshoot > 0.005 && overshoot < 0.007);
    }

private:
    static void follows(const QEasingCurve &curve, const Spring &spring)
    {
        for (int i = 0; i < 100; ++i) {
            const double progress = i / 100.0;
            const double expected = spring.valueAt(progress * spring.settlingSeconds());
            QVERIFY(std::abs(curve.valueForProgress(progress) - expected) < 1e-9);
        }
    }

    static double highest(const QEasingCurve &curve)
    {
        double highest = 0;
        for (int i = 0; i <= 1000; ++i)
            highest = std::max(highest, curve.valueForProgress(i / 1000.0));
        return highest;
    }
};

const RegisteredTest<SpringsTest> registered("Springs");

} // namespace Loadwick

#include "SpringsTest.moc"
