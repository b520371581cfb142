#include "charts/BandMeterPlaces.h"

#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class BandMeterPlacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_places = std::make_unique<BandMeterPlaces>();
        m_places->setWidth(800);
        m_places->setThresholds({0.25, 0.5});
        m_places->setPosition(0.75);
        m_places->setLabelWidths({30, 40, 60});
    }

    void givesTheTicks() { QCOMPARE(m_places->ticks(), (QList<qreal>{200, 400})); }

    void movesTheMarkerByItself()
    {
        QCOMPARE(m_places->markerLeft(), 0.0);
        QSignalSpy changed(m_places.get(), &BandMeterPlaces::changed);
        QSignalSpy moved(m_places.get(), &BandMeterPlaces::markerMoved);
        m_places->setMarkerPosition(0.75);
        QCOMPARE(m_places->markerLeft(), 594.0);
        QCOMPARE(moved.size(), 1);
        QCOMPARE(changed.size(), 0);
    }

    void movesTheMarkerWithTheWidth()
    {
        m_places->setMarkerPosition(1);
        QSignalSpy moved(m_places.get(), &BandMeterPlaces::markerMoved);
        m_places->setWidth(100);
        QCOMPARE(moved.size(), 1);
        QCOMPARE(m_places->markerLeft(), 88.0);
    }

    void placesTheLabels()
    {
        QCOMPARE(m_places->labelLefts(), (QList<qreal>{85, 280, 570}));
        QCOMPARE(m_places->labelsShown(), (QList<bool>{true, true, true}));
    }

    void hidesLabelsThatDoNotFit()
    {
        m_places->setWidth(62);
        QCOMPARE(m_places->labelsShown(), (QList<bool>{false, false, true}));
    }

    void fillsShortListsUp()
    {
        m_places->setThresholds({});
        m_places->setLabelWidths({30});
        QCOMPARE(m_places->thresholds(), (QList<qreal>{0, 0}));
        QCOMPARE(m_places->labelWidths(), (QList<qreal>{30, 0, 0}));
    }

    void leavesOutWhatIsTooMuch()
    {
        m_places->setThresholds({0.1, 0.2, 0.3});
        QCOMPARE(m_places->thresholds(), (QList<qreal>{0.1, 0.2}));
    }

private:
    std::unique_ptr<BandMeterPlaces> m_places;
};

const RegisteredTest<BandMeterPlacesTest> registered("BandMeterPlaces");

} // namespace Loadwick

#include "BandMeterPlacesTest.moc"
