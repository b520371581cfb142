#include "charts/DonutChart.h"

#include <algorithm>

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

const QList<QColor> colors = {Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta};

struct DonutWindow
{
    explicit DonutWindow(const QList<qreal> &tokens)
    {
        window.resize(300, 240);
        chart.setParentItem(window.contentItem());
        chart.setSize({220, 220});
        chart.setProperty("tokens", QVariant::fromValue(tokens));
        chart.setProperty("colors", QVariant::fromValue(colors));
        window.show();
        window.requestActivate();
        (void)QTest::qWaitForWindowActive(&window);
        QTest::mouseMove(&window, {290, 230});
    }

    int rowAt(QPoint point)
    {
        QTest::mouseMove(&window, point);
        return chart.currentRow();
    }

    QImage picture()
    {
        QImage image(220, 220, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        chart.paint(&painter);
        return image;
    }

    QQuickWindow window;
    DonutChart chart;
};

int paintedPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).alpha() > 0 ? 1 : 0;
    }
    return count;
}

// Points on the ring, halfway between its edges.
constexpr QPoint right{110 + 89, 110};
constexpr QPoint left{110 - 89, 110};
constexpr QPoint lowerLeft{110 - 63, 110 + 63};

} // namespace

class DonutChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRowUnderThePointerIsCurrent()
    {
        DonutWindow shown({50, 25, 25});
        QCOMPARE(shown.rowAt(right), 0);
        QCOMPARE(shown.rowAt(lowerLeft), 1);
        QCOMPARE(shown.rowAt({110 - 63, 110 - 63}), 2);
    }

    void onlyTheRingReactsToThePointer()
    {
        DonutWindow shown({50, 25, 25});
        QCOMPARE(shown.rowAt({110, 110}), -1);
        QCOMPARE(shown.rowAt({110 + 60, 110}), -1);
        QCOMPARE(shown.rowAt({3, 3}), -1);
        QCOMPARE(shown.rowAt({295, 110}), -1);
    }

    void skipsRowsWithoutTokensWhenWalkedByKey()
    {
        DonutWindow shown({50, 0, 25});
        shown.chart.forceActiveFocus();
        QTest::keyClick(&shown.window, Qt::Key_Right);
        QCOMPARE(shown.chart.currentRow(), 0);
        QTest::keyClick(&shown.window, Qt::Key_Right);
        QCOMPARE(shown.chart.currentRow(), 2);
    }

    void paintsEachRowInItsColor()
    {
        const QImage picture = DonutWindow({50, 0, 25, 25}).picture();
        QCOMPARE(picture.pixelColor(right), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(lowerLeft), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(110, 110).alpha(), 0);
        QCOMPARE(picture.pixelColor(2, 2).alpha(), 0);
    }

    void wrapsTheColorsAfterTheLast()
    {
        const QImage picture = DonutWindow({0, 0, 0, 0, 0, 50, 50}).picture();
        QCOMPARE(picture.pixelColor(right), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(left), QColor(Qt::green));
    }

    void dimsAllButTheSelectedSlice()
    {
        DonutWindow shown({50, 50});
        QCOMPARE(shown.picture().pixelColor(left).alpha(), 255);
        QCOMPARE(shown.rowAt(right), 0);
        const QImage picture = shown.picture();
        QCOMPARE(picture.pixelColor(right).alpha(), 255);
        QVERIFY(std::abs(picture.pixelColor(left).alpha() - 89) <= 1);
    }

    void paintsNothingWithoutTokens()
    {
        QCOMPARE(paintedPixels(DonutWindow({0, 0}).picture()), 0);
        QCOMPARE(paintedPixels(DonutWindow({}).picture()), 0);
    }

    void paintsEightThousandRows()
    {
        const int whole = paintedPixels(DonutWindow({1}).picture());
        const int many = paintedPixels(DonutWindow(QList<qreal>(8'000, 3.0)).picture());
        QVERIFY2(many > whole * 9 / 10, qPrintable(QString::number(many)));
    }

    void newTokensClearTheCurrentRow()
    {
        DonutWindow shown({50, 50});
        QCOMPARE(shown.rowAt(left), 1);
        shown.chart.setProperty("tokens", QVariant::fromValue(QList<qreal>{10, 20}));
        QCOMPARE(shown.chart.currentRow(), -1);
    }

    void signalsOnlyChanges()
    {
        DonutWindow shown({50, 50});
        const QSignalSpy tokens(&shown.chart, &DonutChart::tokensChanged);
        const QSignalSpy colorsSpy(&shown.chart, &DonutChart::colorsChanged);
        shown.chart.setProperty("tokens", QVariant::fromValue(QList<qreal>{50, 50}));
        shown.chart.setProperty("colors", QVariant::fromValue(colors));
        QCOMPARE(tokens.count() + colorsSpy.count(), 0);
        shown.chart.setProperty("tokens", QVariant::fromValue(QList<qreal>{50}));
        shown.chart.setProperty("colors", QVariant::fromValue(QList<QColor>{Qt::black}));
        QCOMPARE(tokens.count(), 1);
        QCOMPARE(colorsSpy.count(), 1);
    }
};

const RegisteredTest<DonutChartTest> registered("DonutChart");

} // namespace Loadwick

#include "DonutChartTest.moc"
