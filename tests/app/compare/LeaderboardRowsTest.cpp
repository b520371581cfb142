#include "compare/LeaderboardRows.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include "components/TrendMark.h"
#include "history/ScanHistory.h"
#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

std::vector<RecordedScan> history()
{
    const auto scan = [](const char *name, std::int64_t at, std::int64_t total) {
        return RecordedScanBuilder()
            .named(name)
            .in(std::string("/srv/") + name)
            .at(at)
            .ofTotal(total)
            .build();
    };
    return {scan("webshop", 1, 60'001), scan("notes", 2, 3),      scan("webshop", 3, 61'235),
            scan("ferry", 4, 30'080),   scan("ferry", 5, 30'000), scan("tides", 6, 29'999),
            scan("tides", 7, 29'999)};
}

QVariant value(const LeaderboardRows &rows, int row, LeaderboardRows::Role role)
{
    return rows.data(rows.index(row), role);
}

} // namespace

class LeaderboardRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ranksFromOneTheHeaviestFirst()
    {
        const LeaderboardRows &rows = shown();
        QCOMPARE(rows.rowCount(), 4);
        for (int row = 0; row < 4; ++row)
            QCOMPARE(value(rows, row, LeaderboardRows::Rank).toInt(), row + 1);
        QCOMPARE(texts(LeaderboardRows::Title),
                 QStringList({QStringLiteral("webshop"), QStringLiteral("ferry"),
                              QStringLiteral("tides"), QStringLiteral("notes")}));
    }

    void countsScansInTheSingularAndThePlural()
    {
        QCOMPARE(texts(LeaderboardRows::Detail),
                 QStringList({QStringLiteral("2 scans"), QStringLiteral("2 scans"),
                              QStringLiteral("2 scans"), QStringLiteral("1 scan")}));
    }

    void showsTheLatestTotalWithItsBand()
    {
        QCOMPARE(texts(LeaderboardRows::Value),
                 QStringList({QStringLiteral("61,235"), QStringLiteral("30,000"),
                              QStringLiteral("29,999"), QStringLiteral("3")}));
        QCOMPARE(texts(LeaderboardRows::BandTitle),
                 QStringList({QStringLiteral("Excessive"), QStringLiteral("Heavy"),
                              QStringLiteral("Lean"), QStringLiteral("Lean")}));
        QCOMPARE(value(shown(), 0, LeaderboardRows::Band).toInt(), 2);
        QCOMPARE(value(shown(), 1, LeaderboardRows::Band).toInt(), 1);
        QCOMPARE(value(shown(), 3, LeaderboardRows::Band).toInt(), 0);
    }

    void aRepositoryScannedOnceSaysFirstScan()
    {
        QCOMPARE(value(shown(), 3, LeaderboardRows::TrendTitle).toString(),
                 QStringLiteral("First scan"));
        QCOMPARE(value(shown(), 3, LeaderboardRows::TrendKind).toInt(), int(TrendKind::FirstScan));
    }

    void theTrendComparesTheTwoMostRecentScans()
    {
        QCOMPARE(
            texts(LeaderboardRows::TrendTitle).mid(0, 3),
            QStringList({QStringLiteral("+1,234"), QStringLiteral("-80"), QStringLiteral("±0")}));
        QCOMPARE(texts(LeaderboardRows::TrendSymbol),
                 QStringList({QStringLiteral("arrow.up.right"), QStringLiteral("arrow.down.right"),
                              QStringLiteral("equal"), QString()}));
    }

    void repositoriesOfOneNameAreToldApartByTheirPath()
    {
        LeaderboardRows rows{TextLocale()};
        rows.setEntries(ScanHistory::leaderboard(
            std::vector{RecordedScanBuilder().named("app").in("/b/app").build(),
                        RecordedScanBuilder().named("app").in("/a/app").build()}));
        QCOMPARE(value(rows, 0, LeaderboardRows::Title), value(rows, 1, LeaderboardRows::Title));
        QCOMPARE(value(rows, 0, LeaderboardRows::Place).toString(), QStringLiteral("/a/app"));
        QCOMPARE(value(rows, 1, LeaderboardRows::Place).toString(), QStringLiteral("/b/app"));
    }

    void equalTotalsKeepTheOrderOfTheirNames()
    {
        LeaderboardRows rows{TextLocale()};
        rows.setEntries(ScanHistory::leaderboard(
            std::vector{RecordedScanBuilder().named("b").in("/1").ofTotal(5).build(),
                        RecordedScanBuilder().named("a").in("/2").ofTotal(5).build()}));
        QCOMPARE(value(rows, 0, LeaderboardRows::Title).toString(), QStringLiteral("a"));
    }

    void groupsFiguresAsTheLocaleDoes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("trend");
        QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("1,234,567")
                               << QStringLiteral("+1,234,560");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("1.234.567")
                               << QStringLiteral("+1.234.560");
        QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("1,234,567")
                           << QStringLiteral("+1,234,560");
        QTest::newRow("hi_IN") << QStringLiteral("hi_IN") << QStringLiteral("12,34,567")
                               << QStringLiteral("+12,34,560");
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        QFETCH(const QString, locale);
        LeaderboardRows rows(TextLocale::fromEnvironment({{"LC_ALL", locale.toStdString()}}));
        rows.setEntries(ScanHistory::leaderboard(
            std::vector{RecordedScanBuilder().at(1).ofTotal(7).build(),
                        RecordedScanBuilder().at(2).ofTotal(1'234'567).build()}));
        QTEST(value(rows, 0, LeaderboardRows::Value).toString(), "total");
        QTEST(value(rows, 0, LeaderboardRows::TrendTitle).toString(), "trend");
    }

    void behavesAsAModelWhileItsEntriesChange()
    {
        LeaderboardRows rows{TextLocale()};
        const QAbstractItemModelTester tester(&rows);
        rows.setEntries(ScanHistory::leaderboard(history()));
        rows.setEntries({});
        QCOMPARE(rows.rowCount(), 0);
        QCOMPARE(rows.roleNames().size(), 10);
    }

private:
    const LeaderboardRows &shown()
    {
        m_rows.setEntries(ScanHistory::leaderboard(history()));
        return m_rows;
    }

    QStringList texts(LeaderboardRows::Role role)
    {
        QStringList found;
        for (int row = 0; row < shown().rowCount(); ++row)
            found.append(value(m_rows, row, role).toString());
        return found;
    }

    LeaderboardRows m_rows{TextLocale()};
};

const RegisteredTest<LeaderboardRowsTest> registered("LeaderboardRows");

} // namespace Loadwick

#include "LeaderboardRowsTest.moc"
