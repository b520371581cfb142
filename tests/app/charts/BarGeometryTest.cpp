#include "charts/BarGeometry.h"

#include <limits>
#include <random>

#include <QTest>

#include "history/ScanHistory.h"
#include "samples/SampleHistories.h"
#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

BarGeometry geometryOf(const std::vector<RecordedScan> &scans)
{
    return {ScanHistory::categoryAxis(scans), scans};
}

std::vector<RecordedScan> twoScans()
{
    return {RecordedScanBuilder().withCategory("tools", 200).withCategory("memory", 50).build(),
            RecordedScanBuilder().withCategory("memory", 100).build()};
}

// The expected result of `tokens`, by linear search.
std::optional<std::int64_t> sumOf(const RecordedScan &scan, const std::string &name)
{
    std::optional<std::int64_t> sum;
    for (const RecordedCategory &category : scan.categories) {
        if (category.name == name)
            sum = sum.value_or(0) + category.tokens;
    }
    return sum;
}

RecordedScan randomScan(std::mt19937 &random)
{
    RecordedScanBuilder builder;
    const auto count = random() % 12;
    for (std::size_t index = 0; index < count; ++index)
        builder.withCategory("category " + std::to_string(random() % 9),
                             static_cast<std::int64_t>(random() % 50'000));
    return builder.build();
}

} // namespace

class BarGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyHistoryHasNoBarsAndAScaleOfOne()
    {
        const BarGeometry bars = geometryOf({});
        QCOMPARE(bars.rowCount(), std::size_t(0));
        QCOMPARE(bars.columnCount(), std::size_t(0));
        QCOMPARE(bars.maximumRowTokens(), std::int64_t(1));
    }

    void scansWithoutCategoriesHaveAScaleOfOne()
    {
        const BarGeometry bars = geometryOf({RecordedScanBuilder().build()});
        QCOMPARE(bars.columnCount(), std::size_t(1));
        QVERIFY(!bars.hasBars(0));
        QCOMPARE(bars.maximumRowTokens(), std::int64_t(1));
    }

    void onlyZeroCountsHaveAScaleOfOne()
    {
        const BarGeometry bars =
            geometryOf({RecordedScanBuilder().withCategory("tools", 0).build()});
        QCOMPARE(bars.maximumRowTokens(), std::int64_t(1));
        QCOMPARE(bars.length(0), 0.0);
    }

    void aCategoryKeepsItsRowInEveryColumn()
    {
        const BarGeometry bars = geometryOf(twoScans());
        QCOMPARE(bars.category(0), std::string("tools"));
        QCOMPARE(bars.category(1), std::string("memory"));
        QCOMPARE(bars.tokens(0, 1), std::optional<std::int64_t>(50));
        QCOMPARE(bars.tokens(1, 1), std::optional<std::int64_t>(100));
    }

    void aMissingCategoryHasNoTokensAndAZeroOneHasZero()
    {
        std::vector<RecordedScan> scans = twoScans();
        scans.push_back(RecordedScanBuilder().withCategory("tools", 0).build());
        const BarGeometry bars = geometryOf(scans);
        QCOMPARE(bars.tokens(1, 0), std::optional<std::int64_t>());
        QCOMPARE(bars.tokens(2, 0), std::optional<std::int64_t>(0));
    }

    void theScaleEndsAtTheLongestBarOfAnyColumn()
    {
        const BarGeometry bars = geometryOf(twoScans());
        QCOMPARE(bars.maximumRowTokens(), std::int64_t(200));
        QCOMPARE(bars.length(200), 1.0);
        QCOMPARE(bars.length(50), 0.25);
    }

    void sumsCategoriesOfTheSameName()
    {
        const BarGeometry bars = geometryOf(
            {RecordedScanBuilder().withCategory("tools", 30).withCategory("tools", 12).build()});
        QCOMPARE(bars.rowCount(), std::size_t(1));
        QCOMPARE(bars.tokens(0, 0), std::optional<std::int64_t>(42));
        QCOMPARE(bars.maximumRowTokens(), std::int64_t(42));
    }

    void omitsACategoryMissingFromTheAxis()
    {
        const std::vector<RecordedScan> scans = twoScans();
        const BarGeometry bars({"memory"}, scans);
        QCOMPARE(bars.tokens(0, 0), std::optional<std::int64_t>(50));
        QCOMPARE(bars.maximumRowTokens(), std::int64_t(100));
    }

    void comparesNamesExactly()
    {
        const BarGeometry bars = geometryOf({RecordedScanBuilder()
                                                 .withCategory("tools", 1)
                                                 .withCategory("Tools", 2)
                                                 .withCategory("tools ", 3)
                                                 .build()});
        QCOMPARE(bars.rowCount(), std::size_t(3));
    }

    void noBarLeavesTheScale()
    {
        const BarGeometry bars = geometryOf(twoScans());
        QCOMPARE(bars.length(-5), 0.0);
        QCOMPARE(bars.length(std::numeric_limits<std::int64_t>::max()), 1.0);
    }

    void drawsTheLargestCount()
    {
        const std::int64_t most = std::numeric_limits<std::int64_t>::max();
        const BarGeometry bars =
            geometryOf({RecordedScanBuilder().withCategory("tools", most).build()});
        QCOMPARE(bars.maximumRowTokens(), most);
        QCOMPARE(bars.length(most), 1.0);
    }

    void agreesWithAPlainSearchOnRandomHistories()
    {
        std::mt19937 random(20'260'304);
        for (int round = 0; round < 200; ++round) {
            std::vector<RecordedScan> scans;
            for (std::size_t left = random() % 7; left > 0; --left)
                scans.push_back(randomScan(random));
            const BarGeometry bars = geometryOf(scans);
            std::int64_t maximum = 1;
            for (std::size_t column = 0; column < scans.size(); ++column) {
                for (std::size_t row = 0; row < bars.rowCount(); ++row) {
                    const auto expected = sumOf(scans[column], bars.category(row));
                    QCOMPARE(bars.tokens(column, row), expected);
                    maximum = std::max(maximum, expected.value_or(0));
                }
            }
            QCOMPARE(bars.maximumRowTokens(), maximum);
        }
    }

    void handlesTwoHundredRepositoriesOfFiftyCategories()
    {
        const BarGeometry bars = geometryOf(SampleHistories::ofSize(200, 200, 50));
        QCOMPARE(bars.rowCount(), std::size_t(50));
        QCOMPARE(bars.columnCount(), std::size_t(200));
        QVERIFY(bars.tokens(199, 49).has_value());
    }
};

const RegisteredTest<BarGeometryTest> registered("BarGeometry");

} // namespace Loadwick

#include "BarGeometryTest.moc"
