#include "trends/ChangeRow.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

const QColor paper(255, 255, 255);
const QColor orange(255, 128, 0);
const QColor green(0, 128, 0);
constexpr qreal figureWidth = 60;
constexpr qreal trackWidth = 160;

QImage painted(ChangeRow &row)
{
    QImage image(row.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(paper);
    QPainter painter(&image);
    row.paint(&painter);
    return image;
}

/// The columns of a picture that hold that colour, first and last; -1 for none.
std::pair<int, int> extentOf(const QColor &color, const QImage &image)
{
    int first = -1;
    int last = -1;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            if (image.pixelColor(x, y) == color) {
                first = first < 0 ? x : first;
                last = x;
            }
    return {first, last};
}

int inkIn(const QImage &image, const QRectF &box)
{
    int count = 0;
    const QRect pixels = box.toAlignedRect() & image.rect();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            count += image.pixelColor(x, y) == paper ? 0 : 1;
    return count;
}

QList<QRectF> partsOf(const ChangeRowLayout &layout)
{
    return {layout.name, layout.before, layout.after, layout.difference, layout.track};
}

} // namespace

class ChangeRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noPartsOverlap_data();
    void noPartsOverlap();
    void theZeroOfAllBarsIsOneColumn();
    void barsGrowFromTheZeroToBothSides();
    void barsAreMirroredWithTheRow();
    void aSingleTokenIsVisible();
    void figuresEndOnOneLineInBothDirections();
    void aNoteGivesWayBeforeTheName();
    void aTotalHasALineAndNoBar();
    void paintsNothingWithoutAStyle();

private:
    void say(const char *property, const QVariant &value)
    {
        QVERIFY(m_row->setProperty(property, value));
    }

    std::unique_ptr<ChangeStyle> m_style;
    std::unique_ptr<ChangeRow> m_row;
};

void ChangeRowTest::init()
{
    m_style = std::make_unique<ChangeStyle>();
    for (QFont *font :
         {&m_style->font, &m_style->totalFont, &m_style->noteFont, &m_style->headingFont})
        font->setPixelSize(13);
    m_style->text = Qt::black;
    m_style->secondaryText = Qt::darkGray;
    m_style->grewText = Qt::darkRed;
    m_style->shrankText = Qt::darkBlue;
    m_style->grewBar = orange;
    m_style->shrankBar = green;
    m_style->line = Qt::lightGray;
    m_style->figureWidth = figureWidth;
    m_style->trackWidth = trackWidth;
    m_row = std::make_unique<ChangeRow>();
    m_row->setSize({700, 32});
    m_row->setStyle(m_style.get());
    say("name", QStringLiteral("tools"));
    say("before", QStringLiteral("1,234"));
    say("after", QStringLiteral("2,345"));
    say("difference", QStringLiteral("+1,111"));
    say("kind", TrendKind::Grew);
    say("length", 0.5);
}

void ChangeRowTest::noPartsOverlap_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("isNarrow");
    QTest::newRow("wide") << QSizeF(1'000, 32) << false;
    QTest::newRow("less wide") << QSizeF(620, 32) << false;
    QTest::newRow("narrow") << QSizeF(400, 48) << true;
    QTest::newRow("odd") << QSizeF(401.5, 67) << true;
}

void ChangeRowTest::noPartsOverlap()
{
    QFETCH(const QSizeF, size);
    QFETCH(const bool, isNarrow);
    m_style->isNarrow = isNarrow;
    m_row->setSize(size);
    const qreal differenceWidth = QFontMetricsF(m_style->font).horizontalAdvance(m_row->difference);
    for (const bool isMirrored : {false, true}) {
        m_style->isMirrored = isMirrored;
        const QList<QRectF> parts = partsOf(m_row->layout());
        for (const QRectF &part : parts) {
            QVERIFY(QRectF(QPointF(), size).contains(part));
            QVERIFY(part.width() >= differenceWidth);
            for (const QRectF &other : parts)
                QVERIFY(&part == &other || !part.intersects(other));
        }
    }
}

void ChangeRowTest::theZeroOfAllBarsIsOneColumn()
{
    const QRectF track = m_row->layout().track;
    for (const double length : {1.0, 0.01, -0.3, -1.0}) {
        const QRectF bar = m_row->layout().bar(length, false);
        QCOMPARE(length > 0 ? bar.left() : bar.right(), track.center().x());
    }
    QCOMPARE(m_row->layout().bar(1, false).right(), track.right());
    QCOMPARE(m_row->layout().bar(-1, false).left(), track.left());
    QVERIFY(m_row->layout().bar(0, false).isEmpty());
}

void ChangeRowTest::barsGrowFromTheZeroToBothSides()
{
    const int zero = int(m_row->layout().track.center().x());
    const auto [start, end] = extentOf(orange, painted(*m_row));
    QVERIFY(std::abs(start - zero) <= 3);
    QVERIFY(std::abs(end - (zero + trackWidth / 4)) <= 3);
    say("length", -0.5);
    say("kind", TrendKind::Shrank);
    const auto [first, last] = extentOf(green, painted(*m_row));
    QVERIFY(std::abs(first - (zero - trackWidth / 4)) <= 3);
    QVERIFY(std::abs(last - zero) <= 3);
}

void ChangeRowTest::barsAreMirroredWithTheRow()
{
    m_style->isMirrored = true;
    const QRectF track = m_row->layout().track;
    QCOMPARE(track.left(), 0);
    const auto [start, end] = extentOf(orange, painted(*m_row));
    QVERIFY(std::abs(end - track.center().x()) <= 3);
    QVERIFY(start < track.center().x() - 30);
}

void ChangeRowTest::aSingleTokenIsVisible()
{
    say("length", 1e-9);
    QVERIFY(extentOf(orange, painted(*m_row)).first >= 0);
}

void ChangeRowTest::figuresEndOnOneLineInBothDirections()
{
    for (const bool isMirrored : {false, true}) {
        m_style->isMirrored = isMirrored;
        const QRectF column = m_row->layout().difference;
        for (const char *figure : {"+1,111", "-7"}) {
            say("difference", QString::fromLatin1(figure));
            const QImage image = painted(*m_row);
            QVERIFY(inkIn(image, {column.right() - 9, 0, 9, 32}) > 0);
            QVERIFY(inkIn(image, {column.left(), 0, 10, 32}) == 0);
        }
    }
}

void ChangeRowTest::aNoteGivesWayBeforeTheName()
{
    QCOMPARE(m_row->tip(), QString());
    const QRectF box = m_row->layout().name;
    const QRectF gap(box.right() + 1, 0, 14, 32);
    const QImage before = painted(*m_row);
    say("note", QStringLiteral("before: ") + QString(80, u'w'));
    const QImage withNote = painted(*m_row);
    QCOMPARE(inkIn(withNote, {0, 0, 34, 32}), inkIn(before, {0, 0, 34, 32}));
    QVERIFY(inkIn(withNote, box) > inkIn(before, box));
    QCOMPARE(inkIn(withNote, gap), 0);
    QVERIFY(m_row->tip().startsWith(QStringLiteral("tools\nbefore: ")));
    say("name", QString(80, u'W'));
    QCOMPARE(inkIn(painted(*m_row), gap), 0);
    say("note", QString());
    QCOMPARE(m_row->tip(), QString(80, u'W'));
}

void ChangeRowTest::aTotalHasALineAndNoBar()
{
    say("isTotal", true);
    const QImage image = painted(*m_row);
    QCOMPARE(extentOf(orange, image).first, -1);
    QCOMPARE(image.pixelColor(350, 31), m_style->line);
    say("isTotal", false);
    QCOMPARE(painted(*m_row).pixelColor(350, 31), paper);
}

void ChangeRowTest::paintsNothingWithoutAStyle()
{
    QSignalSpy styleChanged(m_row.get(), &ChangeRow::styleChanged);
    m_row->setStyle(m_row->style());
    m_row->setStyle(nullptr);
    QCOMPARE(styleChanged.count(), 1);
    QCOMPARE(inkIn(painted(*m_row), {0, 0, 700, 32}), 0);
    QCOMPARE(m_row->tip(), QString());
}

const RegisteredTest<ChangeRowTest> registered("ChangeRow");

} // namespace Loadwick

#include "ChangeRowTest.moc"
