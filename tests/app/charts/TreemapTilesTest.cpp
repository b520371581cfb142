#include "charts/TreemapChart.h"

#include <cmath>
#include <limits>

#include <QTest>

#include "support/Stopwatch.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

TreemapTiles tilesOf(const std::vector<double> &weights, double width, double height)
{
    TreemapTiles tiles(weights);
    tiles.setFrame(width, height);
    return tiles;
}

std::vector<double> manyWeights(std::size_t count)
{
    std::vector<double> weights;
    for (std::size_t index = 0; index < count; ++index)
        weights.push_back(static_cast<double>(1 + (index * 7'919) % 4'001));
    return weights;
}

} // namespace

class TreemapTilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scalesTheUnitSquareToItsFrame()
    {
        const TreemapTiles tiles = tilesOf({1.0, 3.0}, 160.0, 90.0);
        QCOMPARE(tiles.count(), std::size_t(2));
        QVERIFY((tiles.tile(0) == TreemapRect{120.0, 0.0, 40.0, 90.0}));
        QVERIFY((tiles.tile(1) == TreemapRect{0.0, 0.0, 120.0, 90.0}));
    }

    void areEmptyWithoutAFrame()
    {
        QVERIFY(TreemapTiles(std::vector{1.0}).tile(0) == TreemapRect::zero);
        QVERIFY(tilesOf({1.0}, -5.0, -5.0).tile(0) == TreemapRect::zero);
        QCOMPARE(tilesOf({1.0}, 0.0, 0.0).tileAt(0.0, 0.0), -1);
        QCOMPARE(TreemapTiles().count(), std::size_t(0));
    }

    void showANameFromTheMinimumSize_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::addColumn<bool>("shows");
        QTest::newRow("just large enough") << 84.0 << 28.0 << true;
        QTest::newRow("slightly too narrow") << 83.999 << 28.0 << false;
        QTest::newRow("slightly too short") << 84.0 << 27.999 << false;
        QTest::newRow("wide but short") << 900.0 << 20.0 << false;
        QTest::newRow("tall but narrow") << 40.0 << 900.0 << false;
        QTest::newRow("large") << 640.0 << 360.0 << true;
    }

    void showANameFromTheMinimumSize()
    {
        QFETCH(const double, width);
        QFETCH(const double, height);
        QTEST(tilesOf({1.0}, width, height).showsName(0), "shows");
    }

    void findTheTileOfAPoint()
    {
        const TreemapTiles tiles = tilesOf({1.0, 3.0}, 160.0, 90.0);
        QCOMPARE(tiles.tileAt(0.0, 0.0), 1);
        QCOMPARE(tiles.tileAt(119.9, 89.9), 1);
        QCOMPARE(tiles.tileAt(120.0, 0.0), 0);
        QCOMPARE(tiles.tileAt(159.9, 89.9), 0);
    }

    void findNothingOutsideTheFrame()
    {
        const TreemapTiles tiles = tilesOf({1.0, 3.0}, 160.0, 90.0);
        for (const auto &[x, y] : {std::pair(-0.1, 5.0), {5.0, -0.1}, {160.0, 5.0}, {5.0, 90.0}})
            QCOMPARE(tiles.tileAt(x, y), -1);
        QCOMPARE(tiles.tileAt(std::numeric_limits<double>::quiet_NaN(), 5.0), -1);
    }

    void findNoTileWithoutAWeight()
    {
        const TreemapTiles tiles = tilesOf({0.0, 2.0, -1.0}, 160.0, 90.0);
        QCOMPARE(tiles.tileAt(0.0, 0.0), 1);
        QCOMPARE(tiles.tileAt(159.0, 89.0), 1);
        QCOMPARE(tilesOf({0.0, 0.0}, 160.0, 90.0).tileAt(1.0, 1.0), -1);
    }

    void findTheTileOfEveryPoint()
    {
        const TreemapTiles tiles = tilesOf(manyWeights(600), 608.0, 342.0);
        for (double x = 0.25; x < 608.0; x += 7.0) {
            for (double y = 0.25; y < 342.0; y += 7.0) {
                const int found = tiles.tileAt(x, y);
                QVERIFY(found >= 0);
                const TreemapRect tile = tiles.tile(static_cast<std::size_t>(found));
                QVERIFY(x >= tile.x - 1e-9 && x <= tile.x + tile.width + 1e-9);
                QVERIFY(y >= tile.y - 1e-9 && y <= tile.y + tile.height + 1e-9);
            }
        }
    }

    void leaveOnePointBetweenNeighbours()
    {
        const TreemapTiles tiles = tilesOf({1.0, 1.0, 1.0, 1.0}, 200.0, 100.0);
        QVERIFY((tiles.box(0, 1.0) == TreemapTiles::Box{0.0, 0.0, 99.0, 49.0}));
        QVERIFY((tiles.box(1, 1.0) == TreemapTiles::Box{0.0, 50.0, 99.0, 50.0}));
        QVERIFY((tiles.box(2, 1.0) == TreemapTiles::Box{100.0, 0.0, 100.0, 49.0}));
    }

    void omitTheGapOfAThinTile()
    {
        const TreemapTiles tiles = tilesOf({1.0, 99.0}, 200.0, 100.0);
        QCOMPARE(tiles.box(0, 1.0).width, 2.0);
        QCOMPARE(tiles.box(1, 1.0).width, 197.0);
        QCOMPARE(tilesOf({1.0, 99.0, 1.0}, 101.0, 2.0).box(1, 1.0).height, 2.0);
    }

    void fillTheFrameToItsEdges()
    {
        const TreemapTiles tiles = tilesOf(manyWeights(57), 607.0, 341.0);
        double right = 0.0;
        double bottom = 0.0;
        for (std::size_t index = 0; index < tiles.count(); ++index) {
            const TreemapTiles::Box box = tiles.box(index, 1.0);
            right = std::max(right, box.left + box.width);
            bottom = std::max(bottom, box.top + box.height);
            QCOMPARE(box.left, std::floor(box.left));
            QCOMPARE(box.top + box.height, std::floor(box.top + box.height));
        }
        QCOMPARE(right, 607.0);
        QCOMPARE(bottom, 341.0);
    }

    void snapToTheDevicePixelGrid()
    {
        const TreemapTiles tiles = tilesOf({1.0, 1.0, 1.0}, 100.0, 75.0);
        for (std::size_t index = 0; index < 3; ++index) {
            const double left = tiles.box(index, 2.0).left * 2.0;
            QCOMPARE(left, std::round(left));
        }
        QCOMPARE(tiles.box(1, 2.0).top, 37.5);
    }

    void findATileAmongTenThousandFast()
    {
        const TreemapTiles tiles = tilesOf(manyWeights(10'000), 608.0, 342.0);
        const ProcessorTime timer;
        for (int round = 0; round < 100; ++round)
            QVERIFY(tiles.tileAt(6.0 * round, 341.0) >= 0);
        // A tenth of a frame each would be 160 ms; a sanitizer may take most of that.
        QVERIFY2(timer.milliseconds() < 160, qPrintable(QString::number(timer.milliseconds())));
    }
};

const RegisteredTest<TreemapTilesTest> registered("TreemapTiles");

} // namespace Loadwick

#include "TreemapTilesTest.moc"
