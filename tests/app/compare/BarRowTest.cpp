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

QImage painted(BarRow &row)
{
    QImage image(row.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(paper);
    QPainter painter(&image);
    row.paint(&painter);
    return image;
}

/// How many pixels of a place are not those of the paper.
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
    void init();
    void paintsNameFigureAndBarInTheirPlaces();
    void aNameThatIsTooLongKeepsOutOfTheFigure();
    void aMissingBarIsAnEmptyTrack();
    void fromTheRightTheBarBeginsThere();
    void theFigureIsNeverCut();
    void aTipSaysWhatWasLeftOut();
    void aTipTellsApartWhatHasOneName();
    void aHeadingsTipIsItsName();
    void isPaintedAnewWhenItsStyleChanges();
    void withoutAStyleNothingIsPainted();

private:
    void say(const char *property, const QVariant &value) { m_row->setProperty(property, value); }

    std::unique_ptr<BarStyle> m_style;
    std::unique_ptr<BarRow> m_row;
};

void BarRowTest::init()
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

void BarRowTest::paintsNameFigureAndBarInTheirPlaces()
{
    const QImage image = painted(*m_row);
    const BarRowPlaces places = m_row->places();
    QVERIFY(inkIn(image, places.name) > 20);
    QVERIFY(inkIn(image, places.value) > 20);
    QCOMPARE(image.pixelColor(75, 28), blue);
    QCOMPARE(image.pixelColor(225, 28), m_style->track);
}

void BarRowTest::aNameThatIsTooLongKeepsOutOfTheFigure()
{
    say("name", QString(80, u'W'));
    const QImage image = painted(*m_row);
    const BarRowPlaces places = m_row->places();
    const QRectF gap(places.name.right() + 1, places.name.top(),
                     places.value.left() - places.name.right() - 2, places.name.height());
    QCOMPARE(inkIn(image, gap), 0);
    QVERIFY(inkIn(image, places.name.adjusted(places.name.width() - 20, 0, 0, 0)) > 0);
}

void BarRowTest::aMissingBarIsAnEmptyTrack()
{
    say("length", 0.0);
    QCOMPARE(painted(*m_row).pixelColor(75, 28), m_style->track);
}

void BarRowTest::fromTheRightTheBarBeginsThere()
{
    m_style->setProperty("isMirrored", true);
    const QImage image = painted(*m_row);
    QCOMPARE(image.pixelColor(225, 28), blue);
    QCOMPARE(image.pixelColor(75, 28), m_style->track);
    QVERIFY(inkIn(image, QRectF(240, 0, 60, 22)) > 20);
}

void BarRowTest::theFigureIsNeverCut()
{
    say("value", QStringLiteral("9,223,372,036,854,775,807"));
    const qreal advance =
        QFontMetricsF(m_style->valueFont).horizontalAdvance(m_row->property("value").toString());
    QVERIFY(m_row->places().value.width() >= advance);
}

void BarRowTest::aTipSaysWhatWasLeftOut()
{
    QCOMPARE(m_row->tip(), QString());
    say("name", QString(80, u'W'));
    QCOMPARE(m_row->tip(), QString(80, u'W'));
}

void BarRowTest::aTipTellsApartWhatHasOneName()
{
    say("place", QStringLiteral("/srv/one"));
    QCOMPARE(m_row->tip(), QStringLiteral("Memory\n/srv/one"));
}

void BarRowTest::aHeadingsTipIsItsName()
{
    say("arrangement", BarRow::Heading);
    QCOMPARE(m_row->tip(), QStringLiteral("Memory"));
    QVERIFY(inkIn(painted(*m_row), m_row->places().name) > 20);
}

void BarRowTest::isPaintedAnewWhenItsStyleChanges()
{
    const QImage before = painted(*m_row);
    const QSignalSpy changes(m_style.get(), &BarStyle::changed);
    m_style->setProperty("text", QColor(Qt::red));
    QCOMPARE(changes.size(), 1);
    QVERIFY(painted(*m_row) != before);
}

void BarRowTest::withoutAStyleNothingIsPainted()
{
    m_style.reset();
    QCOMPARE(inkIn(painted(*m_row), QRectF(0, 0, 300, 36)), 0);
    QCOMPARE(m_row->tip(), QString());
}

const RegisteredTest<BarRowTest> registered("BarRow");

} // namespace Loadwick

#include "BarRowTest.moc"
