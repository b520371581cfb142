#include "charts/GaugeGeometry.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class GaugeGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsClockwiseWithItsValue()
    {
        QCOMPARE(GaugeGeometry::span(0), 0.0);
        QCOMPARE(GaugeGeometry::span(50), -135.0);
        QCOMPARE(GaugeGeometry::span(100), -270.0);
    }

    void staysWithinItsEnds()
    {
        QCOMPARE(GaugeGeometry::span(-1), 0.0);
        QCOMPARE(GaugeGeometry::span(100.6), -270.0);
    }

    void isOpenInTheMiddleOfItsBottom()
    {
        constexpr double end = GaugeGeometry::startAngle + GaugeGeometry::fullSpan;
        QCOMPARE((GaugeGeometry::startAngle + end + 360) / 2, 270.0);
    }
};

const RegisteredTest<GaugeGeometryTest> registered("GaugeGeometry");

} // namespace Loadwick

#include "GaugeGeometryTest.moc"
