#include "compare/Comparison.h"

#include <QTest>

#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class ComparisonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyHistoryIsAnEmptyComparison()
    {
        const Comparison comparison = Comparison::of({});
        QVERIFY(comparison.leaderboard.empty());
        QVERIFY(comparison.columns.empty());
        QCOMPARE(comparison.bars.columnCount(), std::size_t(0));
    }

    void sortsTheLeaderboardByWeightAndColumnsByName()
    {
        const std::vector scans{
            RecordedScanBuilder().named("a").in("/a").ofTotal(1).build(),
            RecordedScanBuilder().named("b").in("/b").ofTotal(2).build(),
        };
        const Comparison comparison = Comparison::of(scans);
        QCOMPARE(comparison.leaderboard.at(0).latest.repositoryName, std::string("b"));
        QCOMPARE(comparison.columns.at(0).repositoryName, std::string("a"));
    }

    void onlyTheLatestScanOfARepositoryHasBars()
    {
        const std::vector scans{
            RecordedScanBuilder().at(1).withCategory("old", 900).build(),
            RecordedScanBuilder().at(2).withCategory("new", 5).build(),
        };
        const Comparison comparison = Comparison::of(scans);
        QCOMPARE(comparison.bars.rowCount(), std::size_t(1));
        QCOMPARE(comparison.bars.category(0), std::string("new"));
        QCOMPARE(comparison.bars.maximumRowTokens(), std::int64_t(5));
    }

    void sortsTheAxisByTotalTokens()
    {
        const std::vector scans{
            RecordedScanBuilder().in("/a").withCategory("x", 10).withCategory("y", 7).build(),
            RecordedScanBuilder().in("/b").withCategory("y", 7).build(),
        };
        const Comparison comparison = Comparison::of(scans);
        QCOMPARE(comparison.bars.category(0), std::string("y"));
        QCOMPARE(comparison.bars.category(1), std::string("x"));
    }

    void aBarHasItsTokens()
    {
        QCOMPARE(BarText::value(16'851, {}), QStringLiteral("16,851"));
        QCOMPARE(BarText::spoken(QStringLiteral("Tools"), 16'851, {}),
                 QStringLiteral("Tools: 16,851 tokens"));
        QCOMPARE(BarText::spoken(QStringLiteral("Tools"), 1, {}), QStringLiteral("Tools: 1 token"));
    }

    void distinguishesZeroFromMissing()
    {
        QCOMPARE(BarText::value(0, {}), QStringLiteral("0"));
        QCOMPARE(BarText::value(std::nullopt, {}), QStringLiteral("–"));
        QCOMPARE(BarText::spoken(QStringLiteral("Tools"), std::nullopt, {}),
                 QStringLiteral("Tools: not recorded"));
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        QCOMPARE(BarText::value(1'234'567, {.numbers = "de_DE"}), QStringLiteral("1.234.567"));
        QCOMPARE(BarText::value(1'234'567, {.numbers = "hi_IN"}), QStringLiteral("12,34,567"));
    }
};

const RegisteredTest<ComparisonTest> registered("Comparison");

} // namespace Loadwick

#include "ComparisonTest.moc"
