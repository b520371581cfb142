#include "charts/GaugeArc.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

constexpr int side = 90;
constexpr QPoint lowerLeft(17, 73);
constexpr QPoint top(45, 4);
constexpr QPoint lowerRight(73, 73);
constexpr QPoint bottom(45, 86);
constexpr QPoint centre(45, 45);

} // namespace

class GaugeArcTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_arc = std::make_unique<GaugeArc>();
        m_arc->setSize({side, side});
        m_arc->setProperty("tint", QColor(Qt::red));
        m_arc->setProperty("track", QColor(Qt::gray));
    }

    void theSpanGrowsClockwiseWithTheValue()
    {
        QCOMPARE(GaugeGeometry::span(0), 0.0);
        QCOMPARE(GaugeGeometry::span(50), -135.0);
        QCOMPARE(GaugeGeometry::span(100), -270.0);
    }

    void clampsTheSpan()
    {
        QCOMPARE(GaugeGeometry::span(-1), 0.0);
        QCOMPARE(GaugeGeometry::span(100.6), -270.0);
    }

    void theGapIsInTheMiddleOfTheBottom()
    {
        constexpr double end = GaugeGeometry::startAngle + GaugeGeometry::fullSpan;
        QCOMPARE((GaugeGeometry::startAngle + end + 360) / 2, 270.0);
    }

    void aHalfFullGaugeIsFilledUpToItsTop()
    {
        m_arc->setProperty("value", 50);
        const QImage image = painted();
        QCOMPARE(image.pixelColor(lowerLeft), QColor(Qt::red));
        QCOMPARE(image.pixelColor(top - QPoint(8, 0)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(lowerRight), QColor(Qt::gray));
    }

    void anEmptyGaugeShowsOnlyItsTrack()
    {
        m_arc->setProperty("value", 0);
        const QImage image = painted();
        QCOMPARE(image.pixelColor(lowerLeft), QColor(Qt::gray));
        QCOMPARE(image.pixelColor(top), QColor(Qt::gray));
    }

    void aFullGaugeIsFilledToItsEnd()
    {
        m_arc->setProperty("value", 100);
        QCOMPARE(painted().pixelColor(lowerRight), QColor(Qt::red));
    }

    void isOpenAtTheBottomAndEmptyInTheMiddle()
    {
        m_arc->setProperty("value", 100);
        const QImage image = painted();
        QCOMPARE(image.pixelColor(bottom), QColor(Qt::white));
        QCOMPARE(image.pixelColor(centre), QColor(Qt::white));
    }

    void anOvershootPaintsAFullGauge()
    {
        m_arc->setProperty("value", 100);
        const QImage full = painted();
        m_arc->setProperty("value", 100.6);
        QCOMPARE(painted(), full);
    }

    void respectsItsThickness()
    {
        m_arc->setProperty("value", 100);
        const QPoint within = top + QPoint(0, 8);
        QCOMPARE(painted().pixelColor(within), QColor(Qt::white));
        m_arc->setProperty("thickness", 16);
        QCOMPARE(painted().pixelColor(within), QColor(Qt::red));
    }

    void signalsEachChangeOnce()
    {
        QSignalSpy looks(m_arc.get(), &GaugeArc::looksChanged);
        for (int i = 0; i < 2; ++i) {
            m_arc->setProperty("value", 12);
            m_arc->setProperty("tint", QColor(Qt::blue));
        }
        QCOMPARE(looks.size(), 2);
    }

private:
    QImage painted()
    {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        m_arc->paint(&painter);
        return image;
    }

    std::unique_ptr<GaugeArc> m_arc;
};

const RegisteredTest<GaugeArcTest> registered("GaugeArc");

} // namespace Loadwick

#include "GaugeArcTest.moc"
