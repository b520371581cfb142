#include "compare/ComparePresenter.h"

#include <QTest>

#include "compare/ColumnPresenter.h"
#include "samples/SampleHistories.h"
#include "support/RecordedScanBuilder.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"

namespace Loadwick {

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

    void saysThatOnlyOneRepositoryIsRecordedHoweverManyScansItHas()
    {
        record({RecordedScanBuilder().at(1).ofTotal(31'000).build(),
                RecordedScanBuilder().at(2).build()});
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("Only one repository recorded"));
        QCOMPARE(m_compare->emptyText(),
                 QStringLiteral("webshop measured 27,654 tokens. Choose a second repository and "
                                "scan it to compare the two."));
    }

    void claimsNothingWithTwoRepositories()
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
        QCOMPARE(m_compare->leaderboard()->rowCount(), 0);
        QCOMPARE(m_compare->combined()->rowCount(), 0);
        QCOMPARE(m_compare->columnCount(), 0);
    }

    void twoRepositoriesHaveALeaderboardCardsAndACombinedChart()
    {
        record(twoRepositories());
        QCOMPARE(m_compare->leaderboard()->rowCount(), 2);
        QCOMPARE(m_compare->columnCount(), 2);
        QCOMPARE(m_compare->categoryCount(), 2);
        QCOMPARE(m_compare->combined()->rowCount(), 2 * 3);
        QCOMPARE(card(0)->place(), QStringLiteral("/a"));
        QCOMPARE(card(1)->place(), QStringLiteral("/b"));
        QCOMPARE(card(2)->place(), QString());
        QCOMPARE(card(-1)->place(), QString());
    }

    void cardsStandByNameHoweverHeavyTheyAre()
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

    void aCardTakesAnotherRepositoryAndItsLocaleIsThePages()
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

    void aCardWhoseRepositoryIsGoneHarmsNothing()
    {
        record(twoRepositories());
        const auto last = card(1);
        record({});
        QCOMPARE(m_compare->columnCount(), 0);
        QCOMPARE(last->place(), QStringLiteral("/b"));
        QCOMPARE(m_compare->leaderboard()->rowCount(), 0);
    }

    void twoHundredRepositoriesOfFiftyCategoriesAreLarge()
    {
        record(SampleHistories::ofSize(31, 5, 7));
        QVERIFY(!m_compare->isLarge());
        record(SampleHistories::ofSize(200, 200, 50));
        QVERIFY(m_compare->isLarge());
        QCOMPARE(m_compare->columnCount(), 200);
        QCOMPARE(m_compare->combined()->rowCount(), 50 * 201);
    }

    void saysHowToReadTheBars()
    {
        const QStringList expected = {
            QStringLiteral("One bar is one category of one repository's latest recorded scan. Its "
                           "length is the category's tokens; all bars share one scale."),
            QStringLiteral("The categories stand heaviest first, by their tokens in all "
                           "repositories together. Within each, the repositories keep one order "
                           "and one colour; after five, the colours start again."),
            QStringLiteral("A missing bar, with a dash for its figure, means that the category was "
                           "not recorded for that repository. A category recorded with no tokens "
                           "says 0."),
            QStringLiteral("Totals are authoritative, as reported by Claude. The category splits "
                           "are local estimates."),
        };
        QCOMPARE(m_compare->reading(), expected);
    }

    void isEmptyAgainWhenTheHistoryIsCleared()
    {
        record({RecordedScanBuilder().build()});
        record({});
        QCOMPARE(m_compare->emptyTitle(), QStringLiteral("No recorded scans yet"));
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
