#include "compare/BarRow.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

const QColor paper(255, 255, 255);
const QColor blue(0, 0, 255);
constexpr QSizeF stackedRow(300, 36);
constexpr QSizeF lineRow(800, 24);

QImage painted(BarRow &row)
{
    QImage image(row.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(paper);
    QPainter painter(&image);
    row.paint(&painter);
    return image;
}

/// How many pixels of a rectangle are painted.
int inkIn(const QImage &image, const QRectF &place)
{
    int count = 0;
    const QRect pixels = place.toRect() & image.rect();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            count += image.pixelColor(x, y) == paper ? 0 : 1;
    return count;
}

} // namespace

class BarRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_style = std::make_unique<BarStyle>();
        m_style->nameFont.setPixelSize(12);
        m_style->valueFont.setPixelSize(12);
        m_style->headingFont.setPixelSize(13);
        m_style->text = Qt::black;
        m_style->secondaryText = Qt::darkGray;
        m_style->track = QColor(230, 230, 230);
        m_row = std::make_unique<BarRow>();
        m_row->setSize({300, 36});
        m_row->setStyle(m_style.get());
        say("name", QStringLiteral("Memory"));
        say("value", QStringLiteral("1,234"));
        say("length", 0.5);
        say("fill", blue);
    }

    void paintsNameFigureAndBar()
    {
        const QImage image = painted(*m_row);
        const BarRowPlaces places = m_row->places();
        QVERIFY(inkIn(image, places.name) > 20);
        QVERIFY(inkIn(image, places.value) > 20);
        QCOMPARE(image.pixelColor(75, 28), blue);
        QCOMPARE(image.pixelColor(225, 28), m_style->track);
    }

    void aLongNameDoesNotOverlapTheFigure()
    {
        say("name", QString(80, u'W'));
        const QImage image = painted(*m_row);
        const BarRowPlaces places = m_row->places();
        const QRectF gap(places.name.right() + 1, places.name.top(),
                         places.value.left() - places.name.right() - 2, places.name.height());
        QCOMPARE(inkIn(image, gap), 0);
        QVERIFY(inkIn(image, places.name.adjusted(places.name.width() - 20, 0, 0, 0)) > 0);
    }

    void aMissingBarIsAnEmptyTrack()
    {
        say("length", 0.0);
        QCOMPARE(painted(*m_row).pixelColor(75, 28), m_style->track);
    }

    void aMirroredBarBeginsOnTheRight()
    {
        m_style->setProperty("isMirrored", true);
        const QImage image = painted(*m_row);
        QCOMPARE(image.pixelColor(225, 28), blue);
        QCOMPARE(image.pixelColor(75, 28), m_style->track);
        QVERIFY(inkIn(image, QRectF(240, 0, 60, 22)) > 20);
    }

    void theFigureIsNeverElided()
    {
        say("value", QStringLiteral("9,223,372,036,854,775,807"));
        const qreal advance = QFontMetricsF(m_style->valueFont)
                                  .horizontalAdvance(m_row->property("value").toString());
        QVERIFY(m_row->places().value.width() >= advance);
    }

    void aTipShowsTheElidedText()
    {
        QCOMPARE(m_row->tip(), QString());
        say("name", QString(80, u'W'));
        QCOMPARE(m_row->tip(), QString(80, u'W'));
    }

    void aTipDistinguishesNamesakes()
    {
        say("place", QStringLiteral("/srv/one"));
        QCOMPARE(m_row->tip(), QStringLiteral("Memory\n/srv/one"));
    }

    void aHeadingsTipIsItsName()
    {
        say("arrangement", BarRow::Heading);
        QCOMPARE(m_row->tip(), QStringLiteral("Memory"));
        QVERIFY(inkIn(painted(*m_row), m_row->places().name) > 20);
    }

    void followsChangesOfItsStyle()
    {
        const QImage before = painted(*m_row);
        const QSignalSpy changes(m_style.get(), &BarStyle::changed);
        m_style->setProperty("text", QColor(Qt::red));
        QCOMPARE(changes.size(), 1);
        QVERIFY(painted(*m_row) != before);
    }

    void paintsNothingWithoutAStyle()
    {
        m_style.reset();
        QCOMPARE(inkIn(painted(*m_row), QRectF(0, 0, 300, 36)), 0);
        QCOMPARE(m_row->tip(), QString());
    }

    void stacksNameAndFigureOverABarOfFullWidth()
    {
        const auto places = BarRowPlaces::stacked(stackedRow, 16, 40, 1);
        QCOMPARE(places.track, QRectF(0, 24, 300, 8));
        QCOMPARE(places.bar, places.track);
        QCOMPARE(places.value, QRectF(260, 6, 40, 16));
        QCOMPARE(places.name, QRectF(0, 6, 252, 16));
    }

    void aWideFigureLeavesTheNameTheRest()
    {
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 296, 1).name.width(), 0.0);
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 296, 1).value.left(), 4.0);
    }

    void alignsFiguresOnOneLine()
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

    void zeroTokensHaveNoBarAndFewHaveAVisibleOne()
    {
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 40, 0).bar.width(), 0.0);
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 40, 0.00001).bar.width(), 2.0);
    }

    void equalTokensAreEquallyLong()
    {
        QCOMPARE(BarRowPlaces::stacked(stackedRow, 16, 40, 0.3).bar,
                 BarRowPlaces::stacked(stackedRow, 16, 90, 0.3).bar);
    }

    void aHeadingIsBottomAlignedAndAlone()
    {
        const auto places = BarRowPlaces::heading(lineRow, 18);
        QCOMPARE(places.name, QRectF(0, 4, 800, 18));
        QVERIFY(places.track.isEmpty());
        QVERIFY(places.value.isEmpty());
    }

    void mirrorsAllParts()
    {
        const auto places = BarRowPlaces::inLine(lineRow, 200, 60, 0.5).mirrored(800);
        QCOMPARE(places.name, QRectF(600, 0, 200, 24));
        QCOMPARE(places.value, QRectF(0, 0, 60, 24));
        QCOMPARE(places.track, QRectF(72, 8, 516, 8));
        QCOMPARE(places.bar, QRectF(330, 8, 258, 8));
    }

private:
    void say(const char *property, const QVariant &value) { m_row->setProperty(property, value); }

    std::unique_ptr<BarStyle> m_style;
    std::unique_ptr<BarRow> m_row;
};

const RegisteredTest<BarRowTest> registered("BarRow");

} // namespace Loadwick

#include "BarRowTest.moc"
