#include "compare/ComparePresenter.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include "compare/ColumnPresenter.h"
#include "components/TrendMark.h"
#include "samples/SampleHistories.h"
#include "support/ProcessMemory.h"
#include "support/RecordedScanBuilder.h"
#include "support/Sanitizers.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"

namespace Loadwick {

namespace {

std::vector<RecordedScan> fourRepositories()
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

} // namespace

class ComparePresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scanning = std::make_unique<ScanningModel>();
        m_compare = std::make_unique<ComparePresenter>(m_scanning->model, TextLocale());
    }

    void saysThatNoScanIsRecorded()
    {
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("No recorded scans yet"));
        QCOMPARE(m_compare->emptyText(),
                 QStringLiteral("Scan two repositories and their latest results appear here side "
                                "by side."));
    }

    void saysThatOnlyOneRepositoryIsRecordedForAnyNumberOfScans()
    {
        record({RecordedScanBuilder().at(1).ofTotal(31'000).build(),
                RecordedScanBuilder().at(2).build()});
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("Only one repository recorded"));
        QCOMPARE(m_compare->emptyText(),
                 QStringLiteral("webshop measured 27,654 tokens. Choose a second repository and "
                                "scan it to compare the two."));
    }

    void hasNoEmptyTextWithTwoRepositories()
    {
        record({RecordedScanBuilder().build(), RecordedScanBuilder().in("/srv/webshop").build()});
        QCOMPARE(m_compare->emptyTitle(), QString());
        QCOMPARE(m_compare->emptyText(), QString());
    }

    void groupsFiguresAsTheLocaleDoes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("figure");
        QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("1,234,567");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("1.234.567");
        QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("1,234,567");
        QTest::newRow("hi_IN") << QStringLiteral("hi_IN") << QStringLiteral("12,34,567");
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        QFETCH(const QString, locale);
        QFETCH(const QString, figure);
        const ComparePresenter local(
            m_scanning->model, TextLocale::fromEnvironment({{"LC_ALL", locale.toStdString()}}));
        record({RecordedScanBuilder().ofTotal(1'234'567).build()});
        QCOMPARE(local.emptyText(),
                 QStringLiteral("webshop measured ") + figure +
                     QStringLiteral(" tokens. Choose a second repository and scan it to compare "
                                    "the two."));
        record(twoRepositories());
        QCOMPARE(local.scaleEnd(), figure);
        QCOMPARE(local.scaleStart(), QStringLiteral("0"));
    }

    void oneRepositoryHasNoLeaderboardAndNoCards()
    {
        record({RecordedScanBuilder().withCategory("Tools", 1).build()});
        QCOMPARE(m_compare->leaderboard()->count(), 0);
        QCOMPARE(m_compare->combined()->count(), 0);
        QCOMPARE(m_compare->columnCount(), 0);
    }

    void twoRepositoriesHaveALeaderboardCardsAndACombinedChart()
    {
        record(twoRepositories());
        QCOMPARE(m_compare->leaderboard()->count(), 2);
        QCOMPARE(m_compare->columnCount(), 2);
        QCOMPARE(m_compare->categoryCount(), 2);
        QCOMPARE(m_compare->combined()->count(), 2 * 3);
        QCOMPARE(card(0)->path(), QStringLiteral("/a"));
        QCOMPARE(card(1)->path(), QStringLiteral("/b"));
        QCOMPARE(card(2)->path(), QString());
        QCOMPARE(card(-1)->path(), QString());
    }

    void sortsCardsByNameNotWeight()
    {
        record({RecordedScanBuilder().named("z").in("/z").ofTotal(9).build(),
                RecordedScanBuilder().named("a").in("/a").ofTotal(1).build()});
        QCOMPARE(card(0)->name(), QStringLiteral("a"));
        QCOMPARE(card(1)->name(), QStringLiteral("z"));
    }

    void aCardFollowsItsRepositoryWhenAScanIsAdded()
    {
        std::vector<RecordedScan> scans = twoRepositories();
        record(scans);
        const auto first = card(0);
        scans.push_back(RecordedScanBuilder().in("/a").at(1'800'000'000).ofTotal(5).build());
        record(scans);
        QCOMPARE(first->total(), QStringLiteral("5"));
    }

    void aCardSwitchesRepositoryInThePagesLocale()
    {
        ComparePresenter local(m_scanning->model,
                               TextLocale::fromEnvironment({{"LC_ALL", "de_DE"}}));
        record({RecordedScanBuilder().in("/a").ofTotal(1'000).build(),
                RecordedScanBuilder().in("/b").ofTotal(2'000).build()});
        const auto first = card(0, local);
        QCOMPARE(first->total(), QStringLiteral("1.000"));
        first->setNumber(1);
        QCOMPARE(first->total(), QStringLiteral("2.000"));
    }

    void aCardSurvivesItsRepository()
    {
        record(twoRepositories());
        const auto last = card(1);
        record({});
        QCOMPARE(m_compare->columnCount(), 0);
        QCOMPARE(last->path(), QStringLiteral("/b"));
        QCOMPARE(m_compare->leaderboard()->count(), 0);
    }

    void twoHundredRepositoriesOfFiftyCategoriesAreLarge()
    {
        record(SampleHistories::ofSize(31, 5, 7));
        QVERIFY(!m_compare->isLarge());
        record(SampleHistories::ofSize(200, 200, 50));
        QVERIFY(m_compare->isLarge());
        QCOMPARE(m_compare->columnCount(), 200);
        QCOMPARE(m_compare->combined()->count(), 50 * 201);
    }

    void isEmptyAgainWhenTheHistoryIsCleared()
    {
        record({RecordedScanBuilder().build()});
        record({});
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("No recorded scans yet"));
    }

    void saysThatMemoryRanOut()
    {
        if (isSanitized)
            QSKIP("a sanitizer has an allocator of its own");
        const ComparePresenter compare(m_scanning->model, TextLocale(), m_scanning->dispatcher);
        record(SampleHistories::ofSize(2, 2, 200'000));
        {
            const MemoryShortage shortage(0);
            m_scanning->dispatcher->runBackground();
        }
        m_scanning->dispatcher->runPosted();
        QCOMPARE(compare.emptyTitle(), QStringLiteral("The recorded scans could not be compared"));
        QCOMPARE(compare.columnCount(), 0);
        record(twoRepositories());
        QCOMPARE(compare.emptyTitle(), QString());
        QCOMPARE(compare.columnCount(), 2);
    }

    void theLeaderboardListsTheHeaviestFirst()
    {
        record(fourRepositories());
        QCOMPARE(allRanked("title"),
                 QStringList({QStringLiteral("webshop"), QStringLiteral("ferry"),
                              QStringLiteral("tides"), QStringLiteral("notes")}));
    }

    void countsScansInTheSingularAndThePlural()
    {
        record(fourRepositories());
        QCOMPARE(allRanked("detail"),
                 QStringList({QStringLiteral("2 scans"), QStringLiteral("2 scans"),
                              QStringLiteral("2 scans"), QStringLiteral("1 scan")}));
    }

    void showsTheLatestTotalWithItsBand()
    {
        record(fourRepositories());
        QCOMPARE(allRanked("value"),
                 QStringList({QStringLiteral("61,235"), QStringLiteral("30,000"),
                              QStringLiteral("29,999"), QStringLiteral("3")}));
        QCOMPARE(allRanked("bandTitle"),
                 QStringList({QStringLiteral("Excessive"), QStringLiteral("Heavy"),
                              QStringLiteral("Lean"), QStringLiteral("Lean")}));
        QCOMPARE(ranked(0, "band").toInt(), 2);
        QCOMPARE(ranked(1, "band").toInt(), 1);
        QCOMPARE(ranked(3, "band").toInt(), 0);
    }

    void aRepositoryScannedOnceSaysFirstScan()
    {
        record(fourRepositories());
        QCOMPARE(ranked(3, "trendTitle").toString(), QStringLiteral("First scan"));
        QCOMPARE(ranked(3, "trendKind").toInt(), int(TrendKind::FirstScan));
    }

    void theTrendComparesTheTwoMostRecentScans()
    {
        record(fourRepositories());
        QCOMPARE(
            allRanked("trendTitle").mid(0, 3),
            QStringList({QStringLiteral("+1,234"), QStringLiteral("-80"), QStringLiteral("±0")}));
        QCOMPARE(allRanked("trendSymbol"),
                 QStringList({QStringLiteral("arrow.up.right"), QStringLiteral("arrow.down.right"),
                              QStringLiteral("equal"), QString()}));
    }

    void distinguishesNamesakesByPath()
    {
        record({RecordedScanBuilder().named("app").in("/b/app").build(),
                RecordedScanBuilder().named("app").in("/a/app").build()});
        QCOMPARE(ranked(0, "title"), ranked(1, "title"));
        QCOMPARE(ranked(0, "path").toString(), QStringLiteral("/a/app"));
        QCOMPARE(ranked(1, "path").toString(), QStringLiteral("/b/app"));
    }

    void aSingleTokenIsNotInThePlural()
    {
        record({RecordedScanBuilder().named("a").in("/1").ofTotal(1).build(),
                RecordedScanBuilder().named("b").in("/2").ofTotal(0).build()});
        QCOMPARE(ranked(0, "sentence").toString(),
                 QStringLiteral("1. a, 1 scan, 1 token, Lean, First scan"));
    }

    void equalTotalsKeepTheOrderOfTheirNames()
    {
        record({RecordedScanBuilder().named("b").in("/1").ofTotal(5).build(),
                RecordedScanBuilder().named("a").in("/2").ofTotal(5).build()});
        QCOMPARE(ranked(0, "title").toString(), QStringLiteral("a"));
    }

    void theLeaderboardGroupsFiguresAsTheLocaleDoes()
    {
        ComparePresenter hindi(m_scanning->model, {.numbers = "hi_IN"});
        record({RecordedScanBuilder().at(1).ofTotal(7).build(),
                RecordedScanBuilder().at(2).ofTotal(1'234'567).build(),
                RecordedScanBuilder().in("/other").build()});
        QCOMPARE(hindi.leaderboard()->text(0, QStringLiteral("value")),
                 QStringLiteral("12,34,567"));
        QCOMPARE(hindi.leaderboard()->text(0, QStringLiteral("trendTitle")),
                 QStringLiteral("+12,34,560"));
    }

    void readsARepositoryAsOneSentence()
    {
        record(fourRepositories());
        QCOMPARE(
            allRanked("sentence"),
            QStringList({QStringLiteral("1. webshop, 2 scans, 61,235 tokens, Excessive, +1,234"),
                         QStringLiteral("2. ferry, 2 scans, 30,000 tokens, Heavy, -80"),
                         QStringLiteral("3. tides, 2 scans, 29,999 tokens, Lean, ±0"),
                         QStringLiteral("4. notes, 1 scan, 3 tokens, Lean, First scan")}));
    }

    void theLeaderboardBehavesAsAModel()
    {
        const QAbstractItemModelTester tester(m_compare->leaderboard());
        record(fourRepositories());
        QCOMPARE(m_compare->leaderboard()->count(), 4);
        record({});
        QCOMPARE(m_compare->leaderboard()->count(), 0);
    }

private:
    static std::vector<RecordedScan> twoRepositories()
    {
        return {RecordedScanBuilder().in("/b").withCategory("Tools", 1'234'567).build(),
                RecordedScanBuilder().in("/a").withCategory("Memory", 7).build()};
    }

    std::unique_ptr<ColumnPresenter> card(int number) { return card(number, *m_compare); }

    static std::unique_ptr<ColumnPresenter> card(int number, ComparePresenter &compare)
    {
        auto card = std::make_unique<ColumnPresenter>();
        card->setNumber(number);
        card->setCompare(&compare);
        return card;
    }

    [[nodiscard]] QVariant ranked(int row, const char *role)
    {
        return m_compare->leaderboard()->value(row, QString::fromLatin1(role));
    }

    [[nodiscard]] QStringList allRanked(const char *role)
    {
        QStringList found;
        for (int row = 0; row < m_compare->leaderboard()->count(); ++row)
            found.append(ranked(row, role).toString());
        return found;
    }

    void record(std::vector<RecordedScan> scans)
    {
        m_scanning->model.history().set(std::move(scans));
    }

    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<ComparePresenter> m_compare;
};

const RegisteredTest<ComparePresenterTest> registered("ComparePresenter");

} // namespace Loadwick

#include "ComparePresenterTest.moc"
