#include "charts/TrendChart.h"

#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {
namespace {

constexpr int width = 800;
constexpr int height = 260;
const QColor lineColor(Qt::blue);
const QColor heavyColor(255, 128, 0);
const QColor excessiveColor(Qt::red);

struct ChartWindow
{
    ChartWindow()
    {
        window.resize(width, height);
        chart.setParentItem(window.contentItem());
        chart.setSize({width, height});
        chart.setProperty("lineColor", lineColor);
        chart.setProperty("heavyColor", heavyColor);
        chart.setProperty("excessiveColor", excessiveColor);
        chart.setProperty("groundColor", QColor(Qt::white));
        chart.setLine(&line);
    }

    void show(const std::vector<std::int64_t> &totals)
    {
        std::vector<LineSample> samples;
        for (std::size_t hour = 0; hour < totals.size(); ++hour)
            samples.push_back(
                {.date = std::chrono::sys_seconds(std::chrono::seconds(1'772'615'727)) +
                         std::chrono::hours(hour),
                 .total = totals[hour]});
        line.setSamples(samples);
    }

    QImage picture()
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        chart.paint(&painter);
        return image;
    }

    QString afterKey(Qt::Key key)
    {
        QTest::keyClick(&window, key);
        return chart.readout();
    }

    QString afterMoveTo(int x, int y)
    {
        QTest::mouseMove(&window, {x, y});
        return chart.readout();
    }

    void activate()
    {
        window.show();
        window.requestActivate();
        (void)QTest::qWaitForWindowActive(&window);
        chart.forceActiveFocus();
        QTest::mouseMove(&window, {0, height - 1});
    }

    const TimeZone utc{"UTC"};
    TrendLine line{TextLocale{.numbers = "de_DE", .dates = "de_DE"}};
    QQuickWindow window;
    TrendChart chart;
};

/// The height of the only line of that colour, in the middle of the picture; -1 if there is none.
int heightOf(const QColor &color, const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        int found = 0;
        for (int x = 100; x < 600; ++x)
            found += picture.pixelColor(x, y) == color ? 1 : 0;
        if (found > 100)
            return y;
    }
    return -1;
}

/// The bounding rectangle of all pixels of that colour.
QRect boxOf(const QColor &color, const QImage &picture)
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y) == color)
                box |= QRect(x, y, 1, 1);
    return box;
}

} // namespace

class TrendChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsBothThresholdsDashed()
    {
        ChartWindow at;
        at.show({10'000, 20'000});
        const QImage picture = at.picture();
        const int heavy = heightOf(heavyColor, picture);
        const int excessive = heightOf(excessiveColor, picture);
        QVERIFY(excessive > 0);
        QVERIFY(heavy > excessive);
        QVERIFY(std::abs((height - 25 - excessive) - 2 * (height - 25 - heavy)) < 6);
        int dashes = 0;
        for (int x = 100; x < 600; ++x)
            dashes += picture.pixelColor(x, heavy) == heavyColor &&
                              picture.pixelColor(x + 1, heavy) != heavyColor
                          ? 1
                          : 0;
        QVERIFY(dashes > 20);
    }

    void drawsTheLine()
    {
        ChartWindow at;
        at.show({10'000, 10'000});
        QVERIFY(heightOf(lineColor, at.picture()) > height / 2);
    }

    void paintsHistoriesOfEveryKind_data()
    {
        QTest::addColumn<QList<qint64>>("totals");
        QTest::newRow("none") << QList<qint64>{};
        QTest::newRow("one") << QList<qint64>{5};
        QTest::newRow("of 3") << QList<qint64>{3, 3};
        QTest::newRow("of 180,000") << QList<qint64>{180'000, 20'000, 60'000};
        QTest::newRow("of 9 million") << QList<qint64>{9'000'000, 1};
        QTest::newRow("200") << QList<qint64>(200, 20'000);
    }

    void paintsHistoriesOfEveryKind()
    {
        QFETCH(const QList<qint64>, totals);
        ChartWindow at;
        at.show({totals.begin(), totals.end()});
        QVERIFY(heightOf(heavyColor, at.picture()) > 0);
        at.chart.setSize({0, 0});
        (void)at.picture();
    }

    void thePointerChoosesTheNearestScan()
    {
        ChartWindow at;
        at.show({10'000, 20'000, 30'000});
        at.activate();
        QCOMPARE(at.afterMoveTo(width / 2, height / 2), QStringLiteral("4. März 2026, 10:15, "
                                                                       "20.000 tokens"));
        QCOMPARE(at.afterMoveTo(100, height / 2), QStringLiteral("4. März 2026, 09:15, 10.000 "
                                                                 "tokens"));
        QCOMPARE(at.afterMoveTo(1, 1), QString());
    }

    // A ring would look like the mark of a compared scan.
    void aHaloMarksTheCurrentScan()
    {
        ChartWindow at;
        at.show({10'000, 20'000, 30'000});
        at.activate();
        const QImage before = at.picture();
        (void)at.afterKey(Qt::Key_Right);
        (void)at.afterKey(Qt::Key_Right);
        const QPoint centre = at.chart.centreOf(1).toPoint();
        const QPoint halo = centre + QPoint(6, 6);
        QCOMPARE(at.picture().pixelColor(centre), lineColor);
        QVERIFY(at.picture().pixelColor(halo) != before.pixelColor(halo));
    }

    void everyScanIsUnderTheCentreOfItsPoint()
    {
        ChartWindow at;
        QSignalSpy drawn(&at.chart, &TrendChart::drawn);
        at.show({10'000, 20'000, 30'000});
        QCOMPARE(drawn.count(), 1);
        for (const int scan : {0, 1, 2})
            QCOMPARE(at.chart.markUnder(at.chart.centreOf(scan)), scan);
        const QPointF before = at.chart.centreOf(2);
        at.chart.setWidth(width / 2.0);
        QCOMPARE(drawn.count(), 2);
        QVERIFY(at.chart.centreOf(2).x() < before.x() - width / 3.0);
        for (const int missing : {-1, 3})
            QCOMPARE(at.chart.centreOf(missing), QPointF());
        QCOMPARE(at.chart.markUnder({1, 1}), -1);
    }

    void theArrowKeysWalkByDate()
    {
        ChartWindow at;
        at.show({10'000, 20'000, 30'000});
        at.activate();
        QVERIFY(at.afterKey(Qt::Key_Right).endsWith(QStringLiteral("10.000 tokens")));
        QVERIFY(at.afterKey(Qt::Key_Right).endsWith(QStringLiteral("20.000 tokens")));
        QVERIFY(at.afterKey(Qt::Key_End).endsWith(QStringLiteral("30.000 tokens")));
        QCOMPARE(at.afterKey(Qt::Key_Escape), QString());
    }

    void marksTheChosenScanInThePicture()
    {
        ChartWindow at;
        at.show({10'000, 20'000, 30'000});
        at.activate();
        const QImage before = at.picture();
        (void)at.afterKey(Qt::Key_Right);
        QVERIFY(at.picture() != before);
        (void)at.afterKey(Qt::Key_Escape);
        QCOMPARE(at.picture(), before);
    }

    void aPictureOfMorePixelsKeepsThePositions()
    {
        ChartWindow at;
        at.show({10'000, 20'000, 30'000});
        const QImage before = at.picture();
        QImage fine(2 * width, 2 * height, QImage::Format_RGB32);
        fine.setDevicePixelRatio(2);
        fine.fill(Qt::white);
        QPainter painter(&fine);
        at.chart.paint(&painter);
        painter.end();
        fine.setDevicePixelRatio(1);
        QCOMPARE(heightOf(heavyColor, fine.scaled(width, height)), heightOf(heavyColor, before));
        const QRect drawn = boxOf(lineColor, fine);
        const QRect expected = boxOf(lineColor, before);
        QVERIFY(std::abs(drawn.left() / 2 - expected.left()) <= 1);
        QVERIFY(std::abs(drawn.bottom() / 2 - expected.bottom()) <= 1);
        QCOMPARE(at.picture(), before);
    }

    void aVectorDrawingHoldsNoPixels()
    {
        ChartWindow at;
        at.show({10'000, 20'000, 30'000});
        (void)at.picture();
        QPicture drawing;
        QPainter painter(&drawing);
        at.chart.paint(&painter);
        painter.end();
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter(&image).drawPicture(0, 0, drawing);
        QCOMPARE(boxOf(lineColor, image), boxOf(lineColor, at.picture()));
        QVERIFY2(drawing.size() < 100'000, qPrintable(QString::number(drawing.size())));
    }

    void anotherHistoryClearsTheCurrentScan()
    {
        ChartWindow at;
        at.show({10'000, 20'000, 30'000});
        at.activate();
        (void)at.afterKey(Qt::Key_End);
        at.show({10'000});
        QCOMPARE(at.chart.currentMark(), -1);
        QCOMPARE(at.chart.readout(), QString());
    }

    void aStyleChangeRepaints()
    {
        ChartWindow at;
        at.show({10'000, 20'000});
        const QImage before = at.picture();
        at.chart.setProperty("lineColor", QColor(Qt::green));
        QVERIFY(at.picture() != before);
    }
};

const RegisteredTest<TrendChartTest> registered("TrendChart");

} // namespace Loadwick

#include "TrendChartTest.moc"
