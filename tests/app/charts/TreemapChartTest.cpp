#include "charts/TreemapChart.h"

#include <cstdlib>

#include <QPainter>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include "support/Stopwatch.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

/// Rows of a name and a weight, which count how often a name is read.
class NamedWeights final : public QAbstractListModel
{
public:
    explicit NamedWeights(std::vector<double> weights) : m_weights(std::move(weights)) {}

    void setWeights(std::vector<double> weights)
    {
        beginResetModel();
        m_weights = std::move(weights);
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex & = {}) const override
    {
        return static_cast<int>(m_weights.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::UserRole)
            return m_weights[static_cast<std::size_t>(index.row())];
        m_askedForNames.append(index.row());
        return QStringLiteral("a name that is far too long for any tile of a map/CLAUDE.md");
    }
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override
    {
        return {{Qt::UserRole, "weight"}, {Qt::UserRole + 1, "name"}};
    }

    [[nodiscard]] QList<int> askedForNames() const { return m_askedForNames; }

private:
    std::vector<double> m_weights;
    mutable QList<int> m_askedForNames;
};

struct ChartWindow
{
    explicit ChartWindow(std::vector<double> weights, QSizeF size = {160.0, 90.0})
        : rows(std::move(weights))
    {
        window.resize(700, 400);
        chart.setSize(size);
        // A window uses its corner as the position of a pointer that has not moved yet.
        chart.setPosition(origin);
        chart.setParentItem(window.contentItem());
        chart.setProperty("colors", QVariant::fromValue(QList<QColor>{Qt::red, Qt::blue}));
        chart.setProperty("radius", 0.0);
        chart.setModel(&rows);
        window.show();
        (void)QTest::qWaitForWindowActive(&window);
        QTest::mouseMove(&window, {690, 390});
    }

    /// A point of the chart.
    void pointAt(QPoint point) { QTest::mouseMove(&window, point + origin); }

    /// The chart painted on a transparent image.
    QImage picture(qreal pixelsPerPoint = 1.0)
    {
        QImage image((chart.size() * pixelsPerPoint).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(pixelsPerPoint, pixelsPerPoint);
        chart.paint(&painter);
        return image;
    }

    static constexpr QPoint origin{40, 40};

    NamedWeights rows;
    QQuickWindow window;
    TreemapChart chart;
};

} // namespace

class TreemapChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coloursItsTilesByPosition()
    {
        // The largest is on the left, the second at the top right above the third, which reuses the
        // first colour.
        ChartWindow shown({20.0, 2.0, 2.0}, {60.0, 24.0});
        const QImage picture = shown.picture();
        QVERIFY(std::abs(picture.pixelColor(10, 12).alpha() - 128) <= 1);
        QVERIFY(picture.pixelColor(10, 12).red() > 250);
        QVERIFY(picture.pixelColor(55, 3).blue() > 250);
        QVERIFY(picture.pixelColor(55, 20).red() > 250);
    }

    void outlinesEachTileInItsFullColorAtRest()
    {
        ChartWindow shown({1.0, 3.0}, {80.0, 24.0});
        const QImage picture = shown.picture();
        // The larger one is on the left and ends before the gap.
        const QRect tile(0, 0, 59, 24);
        for (const QPoint edge : {QPoint(0, 12), QPoint(58, 12), QPoint(30, 0), QPoint(30, 23)})
            QCOMPARE(picture.pixelColor(edge), QColor(Qt::blue));
        for (const QPoint inside : {QPoint(1, 12), QPoint(57, 12), QPoint(30, 1), QPoint(30, 22)})
            QCOMPARE(picture.pixelColor(inside).alpha(), 128);
        QCOMPARE(picture.pixelColor(tile.right() + 1, 12).alpha(), 0);
        QCOMPARE(picture.pixelColor(79, 12), QColor(Qt::red));
    }

    void dimsTheOutlineToo()
    {
        ChartWindow shown({1.0, 3.0}, {80.0, 24.0});
        shown.pointAt({30, 12});
        QVERIFY(shown.picture().pixelColor(79, 12).alpha() <= 128);
    }

    void aTileThatIsAllOutlineIsAllColor()
    {
        ChartWindow shown({1.0, 59.0}, {60.0, 24.0});
        const QImage picture = shown.picture();
        QCOMPARE(picture.pixelColor(59, 12), QColor(Qt::red));
    }

    void leavesAHairlineBetweenTiles()
    {
        ChartWindow shown({1.0, 1.0}, {40.0, 20.0});
        const QImage picture = shown.picture();
        QVERIFY(picture.pixelColor(20, 8).alpha() > 0);
        QCOMPARE(picture.pixelColor(20, 9).alpha(), 0);
        QVERIFY(picture.pixelColor(20, 10).alpha() > 0);
        QVERIFY(picture.pixelColor(39, 19).alpha() > 0);
    }

    void highlightsTheTileUnderThePointerAndDimsTheOthers()
    {
        ChartWindow shown({1.0, 3.0}, {80.0, 24.0});
        const int rest = shown.picture().pixelColor(30, 12).alpha();
        shown.pointAt({30, 12});
        QCOMPARE(shown.chart.currentMark(), 1);
        const QImage picture = shown.picture();
        QVERIFY(picture.pixelColor(30, 12).alpha() > rest);
        QVERIFY(picture.pixelColor(70, 12).alpha() < rest);
        QCOMPARE(picture.pixelColor(0, 12).alpha(), 255);
    }

    void highlightsATileChosenByKey()
    {
        ChartWindow shown({1.0, 3.0}, {80.0, 24.0});
        shown.chart.forceActiveFocus();
        QTest::keyClick(&shown.window, Qt::Key_Right);
        QCOMPARE(shown.chart.currentMark(), 0);
        const QImage picture = shown.picture();
        QVERIFY(picture.pixelColor(70, 12).alpha() > picture.pixelColor(30, 12).alpha());
    }

    void isAtRestAgainWithoutThePointer()
    {
        ChartWindow shown({1.0, 3.0}, {80.0, 24.0});
        const QImage atRest = shown.picture();
        shown.pointAt({30, 12});
        QVERIFY(shown.picture() != atRest);
        shown.pointAt({300, 300});
        QCOMPARE(shown.chart.currentMark(), -1);
        QVERIFY(shown.picture() == atRest);
    }

    void readsOnlyVisibleNames()
    {
        ChartWindow shown({1.0, 1'000.0, 1.0}, {200.0, 100.0});
        (void)shown.picture();
        QVERIFY(!shown.rows.askedForNames().isEmpty());
        for (const int row : shown.rows.askedForNames())
            QCOMPARE(row, 1);
    }

    void showsANameOnlyInALargeEnoughTile()
    {
        const auto writes = [](QSizeF size) {
            ChartWindow shown({1.0}, size);
            shown.chart.setProperty("textColor", QColor(Qt::green));
            const QImage picture = shown.picture();
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    if (picture.pixelColor(x, y).green() > 100)
                        return true;
            return false;
        };
        QVERIFY(writes({84.0, 28.0}));
        QVERIFY(!writes({83.0, 28.0}));
        QVERIFY(!writes({84.0, 27.0}));
    }

    void followsItsRows()
    {
        ChartWindow shown({1.0}, {80.0, 24.0});
        const QImage one = shown.picture();
        shown.pointAt({30, 12});
        shown.rows.setWeights({1.0, 1.0, 1.0});
        QCOMPARE(shown.chart.currentMark(), -1);
        QVERIFY(shown.picture() != one);
    }

    void outlivesItsRows()
    {
        TreemapChart chart;
        chart.setSize({160.0, 90.0});
        {
            NamedWeights rows({1.0});
            chart.setModel(&rows);
            QCOMPARE(chart.model(), &rows);
        }
        QCOMPARE(chart.model(), nullptr);
        QImage image(160, 90, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        chart.paint(&painter);
    }

    void isEmptyWithoutRows()
    {
        ChartWindow shown({}, {80.0, 24.0});
        shown.pointAt({30, 12});
        QCOMPARE(shown.chart.currentMark(), -1);
        QCOMPARE(shown.picture().pixelColor(30, 12).alpha(), 0);
    }

    void anEmptyFileIsReachableAndPaintsNothing()
    {
        ChartWindow shown({0.0, 1.0}, {80.0, 24.0});
        shown.chart.forceActiveFocus();
        QTest::keyClick(&shown.window, Qt::Key_Right);
        QCOMPARE(shown.chart.currentMark(), 0);
        // The neighbour's outline is there, and it is dimmed.
        QCOMPARE(shown.picture().pixelColor(0, 0).red(), 0);
        QVERIFY(shown.picture().pixelColor(0, 0).alpha() <= 128);
    }

    void supportsHighResolutionScreens()
    {
        ChartWindow shown({1.0, 1.0}, {40.0, 20.0});
        const QImage picture = shown.picture(2.0);
        QVERIFY(picture.pixelColor(40, 17).alpha() > 0);
        QCOMPARE(picture.pixelColor(40, 18).alpha(), 0);
        QCOMPARE(picture.pixelColor(40, 19).alpha(), 0);
        QVERIFY(picture.pixelColor(40, 20).alpha() > 0);
    }

    void paintsTenThousandTilesWithinAFrame()
    {
        std::vector<double> weights;
        for (int tile = 0; tile < 10'000; ++tile)
            weights.push_back(1.0 + (tile * 7'919) % 4'001);
        ChartWindow shown(std::move(weights), {608.0, 342.0});
        const QImage first = shown.picture();
        const ProcessorTime timer;
        for (int round = 0; round < 20; ++round) {
            shown.pointAt({1 + 30 * round, 100});
            QVERIFY(shown.picture() != first);
        }
        // 16 ms each, plus an allowance for sanitizers.
        QVERIFY2(timer.milliseconds() < 20 * 16 * 4,
                 qPrintable(QString::number(timer.milliseconds())));
    }
};

const RegisteredTest<TreemapChartTest> registered("TreemapChart");

} // namespace Loadwick

#include "TreemapChartTest.moc"
