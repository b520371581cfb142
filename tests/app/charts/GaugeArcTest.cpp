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
        m_arc->setTint(Qt::red);
        m_arc->setTrack(Qt::gray);
    }

    void aHalfFullGaugeIsFilledUpToItsTop()
    {
        m_arc->setValue(50);
        const QImage image = painted();
        QCOMPARE(image.pixelColor(lowerLeft), QColor(Qt::red));
        QCOMPARE(image.pixelColor(top - QPoint(8, 0)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(lowerRight), QColor(Qt::gray));
    }

    void anEmptyGaugeShowsItsTrackAlone()
    {
        m_arc->setValue(0);
        const QImage image = painted();
        QCOMPARE(image.pixelColor(lowerLeft), QColor(Qt::gray));
        QCOMPARE(image.pixelColor(top), QColor(Qt::gray));
    }

    void aFullGaugeIsFilledToItsEnd()
    {
        m_arc->setValue(100);
        QCOMPARE(painted().pixelColor(lowerRight), QColor(Qt::red));
    }

    void isOpenAtTheBottomAndEmptyInTheMiddle()
    {
        m_arc->setValue(100);
        const QImage image = painted();
        QCOMPARE(image.pixelColor(bottom), QColor(Qt::white));
        QCOMPARE(image.pixelColor(centre), QColor(Qt::white));
    }

    void aSpringBeyondTheEndPaintsTheEnd()
    {
        m_arc->setValue(100);
        const QImage full = painted();
        m_arc->setValue(100.6);
        QCOMPARE(painted(), full);
    }

    void isAsThickAsItIsAskedToBe()
    {
        m_arc->setValue(100);
        const QPoint within = top + QPoint(0, 8);
        QCOMPARE(painted().pixelColor(within), QColor(Qt::white));
        m_arc->setThickness(16);
        QCOMPARE(painted().pixelColor(within), QColor(Qt::red));
    }

    void tellsOfWhatChangesOnce()
    {
        QSignalSpy value(m_arc.get(), &GaugeArc::valueChanged);
        QSignalSpy tint(m_arc.get(), &GaugeArc::tintChanged);
        for (int i = 0; i < 2; ++i) {
            m_arc->setValue(12);
            m_arc->setTint(Qt::blue);
        }
        QCOMPARE(value.size(), 1);
        QCOMPARE(tint.size(), 1);
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
