#include "compare/BarRow.h"

#include <malloc.h>

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include "support/Sanitizers.h"
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

/// What the window's pictures and everything else take on the heap once it is drawn, in bytes.
std::size_t heapInUse(QQuickWindow &window)
{
    (void)window.grabWindow();
    return mallinfo2().uordblks;
}

/// How many pixels of a rectangle are painted.
int inkIn(const QImage &image, const QRectF &box)
{
    int count = 0;
    const QRect pixels = box.toRect() & image.rect();
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
    void hiddenRowsHoldNoPictures()
    {
        if (isSanitized)
            QSKIP("a sanitizer has an allocator of its own");
        constexpr int count = 100;
        QQuickWindow window;
        for (int number = 0; number < count; ++number) {
            auto *row = new BarRow(window.contentItem());
            row->setSize(stackedRow);
            row->setStyle(m_style.get());
        }
        const std::size_t before = heapInUse(window);
        window.contentItem()->setVisible(false);
        const auto pixels = static_cast<std::size_t>(stackedRow.width() * stackedRow.height());
        QVERIFY(heapInUse(window) + count * pixels * sizeof(QRgb) < before);
    }

    void aRowThatIsShownAgainIsPainted()
    {
        QQuickWindow window;
        window.resize(300, 36);
        m_row->setParentItem(window.contentItem());
        const QImage before = window.grabWindow();
        m_row->setVisible(false);
        QVERIFY(window.grabWindow() != before);
        say("value", QStringLiteral("5,678"));
        m_row->setVisible(true);
        const QImage after = window.grabWindow();
        say("value", QStringLiteral("1,234"));
        QVERIFY(after != before);
        QCOMPARE(window.grabWindow(), before);
        m_row->setParentItem(nullptr);
    }

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
        const BarRowLayout layout = m_row->layout();
        QVERIFY(inkIn(image, layout.name) > 20);
        QVERIFY(inkIn(image, layout.value) > 20);
        QCOMPARE(image.pixelColor(75, 28), blue);
        QCOMPARE(image.pixelColor(225, 28), m_style->track);
    }

    void aLongNameDoesNotOverlapTheFigure()
    {
        say("name", QString(80, u'W'));
        const QImage image = painted(*m_row);
        const BarRowLayout layout = m_row->layout();
        const QRectF gap(layout.name.right() + 1, layout.name.top(),
                         layout.value.left() - layout.name.right() - 2, layout.name.height());
        QCOMPARE(inkIn(image, gap), 0);
        QVERIFY(inkIn(image, layout.name.adjusted(layout.name.width() - 20, 0, 0, 0)) > 0);
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
        QVERIFY(m_row->layout().value.width() >= advance);
    }

    void aTipShowsTheElidedText()
    {
        QCOMPARE(m_row->tip(), QString());
        say("name", QString(80, u'W'));
        QCOMPARE(m_row->tip(), QString(80, u'W'));
    }

    void aTipDistinguishesNamesakes()
    {
        say("path", QStringLiteral("/srv/one"));
        QCOMPARE(m_row->tip(), QStringLiteral("Memory\n/srv/one"));
    }

    void aHeadingsTipIsItsName()
    {
        say("arrangement", BarRow::Heading);
        QCOMPARE(m_row->tip(), QStringLiteral("Memory"));
        QVERIFY(inkIn(painted(*m_row), m_row->layout().name) > 20);
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
        const auto layout = BarRowLayout::stacked(stackedRow, 16, 40, 1);
        QCOMPARE(layout.track, QRectF(0, 24, 300, 8));
        QCOMPARE(layout.bar, layout.track);
        QCOMPARE(layout.value, QRectF(260, 6, 40, 16));
        QCOMPARE(layout.name, QRectF(0, 6, 252, 16));
    }

    void aWideFigureLeavesTheNameTheRest()
    {
        QCOMPARE(BarRowLayout::stacked(stackedRow, 16, 296, 1).name.width(), 0.0);
        QCOMPARE(BarRowLayout::stacked(stackedRow, 16, 296, 1).value.left(), 4.0);
    }

    void alignsFiguresOnOneLine()
    {
        const auto layout = BarRowLayout::inLine(lineRow, 200, 60, 0.5);
        QCOMPARE(layout.name, QRectF(0, 0, 200, 24));
        QCOMPARE(layout.value, QRectF(740, 0, 60, 24));
        QCOMPARE(layout.track, QRectF(212, 8, 516, 8));
        QCOMPARE(layout.bar, QRectF(212, 8, 258, 8));
    }

    void aNarrowRowHasNoTrackRatherThanANegativeOne()
    {
        const auto layout = BarRowLayout::inLine({120, 24}, 100, 60, 1);
        QCOMPARE(layout.track.width(), 0.0);
        QCOMPARE(layout.bar.width(), 0.0);
    }

    void zeroTokensHaveNoBarAndFewHaveAVisibleOne()
    {
        QCOMPARE(BarRowLayout::stacked(stackedRow, 16, 40, 0).bar.width(), 0.0);
        QCOMPARE(BarRowLayout::stacked(stackedRow, 16, 40, 0.00001).bar.width(), 2.0);
    }

    void equalTokensAreEquallyLong()
    {
        QCOMPARE(BarRowLayout::stacked(stackedRow, 16, 40, 0.3).bar,
                 BarRowLayout::stacked(stackedRow, 16, 90, 0.3).bar);
    }

    void aHeadingIsBottomAlignedAndAlone()
    {
        const auto layout = BarRowLayout::heading(lineRow, 18);
        QCOMPARE(layout.name, QRectF(0, 4, 800, 18));
        QVERIFY(layout.track.isEmpty());
        QVERIFY(layout.value.isEmpty());
    }

    void mirrorsAllParts()
    {
        const auto layout = BarRowLayout::inLine(lineRow, 200, 60, 0.5).mirrored(800);
        QCOMPARE(layout.name, QRectF(600, 0, 200, 24));
        QCOMPARE(layout.value, QRectF(0, 0, 60, 24));
        QCOMPARE(layout.track, QRectF(72, 8, 516, 8));
        QCOMPARE(layout.bar, QRectF(330, 8, 258, 8));
    }

private:
    void say(const char *property, const QVariant &value) { m_row->setProperty(property, value); }

    std::unique_ptr<BarStyle> m_style;
    std::unique_ptr<BarRow> m_row;
};

const RegisteredTest<BarRowTest> registered("BarRow");

} // namespace Loadwick

#include "BarRowTest.moc"
