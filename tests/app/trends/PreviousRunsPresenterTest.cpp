#include "trends/PreviousRunsPresenter.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"
#include "support/TimeZone.h"

namespace Loadwick {

class PreviousRunsPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsThirtyScansAsEveryScan()
    {
        PreviousRunsPresenter runs{TextLocale()};
        runs.show(scans(30));
        QCOMPARE(runs.detail(),
                 QStringLiteral("Every recorded scan, newest first, across every repository."));
        QCOMPARE(runs.rows()->rowCount(), 30);
    }

    void ofThirtyOneScansListsTheNewestThirty()
    {
        PreviousRunsPresenter runs{TextLocale()};
        runs.show(scans(31));
        QCOMPARE(runs.detail(), QStringLiteral("The newest 30 of 31 recorded scans, across every "
                                               "repository."));
        QCOMPARE(runs.rows()->rowCount(), 30);
        QCOMPARE(at(runs, 0, "value"), QStringLiteral("31"));
        QCOMPARE(at(runs, 29, "value"), QStringLiteral("2"));
    }

    void writesTheNumberOfScansInPlainDecimal()
    {
        PreviousRunsPresenter runs({.numbers = "ar_EG", .dates = "ar_EG"});
        runs.show(scans(200));
        QVERIFY(runs.detail().startsWith(QStringLiteral("The newest 30 of 200 ")));
    }

    void listsNothingWithoutScans()
    {
        PreviousRunsPresenter runs{TextLocale()};
        runs.show({});
        QCOMPARE(runs.rows()->rowCount(), 0);
        QCOMPARE(runs.detail(),
                 QStringLiteral("Every recorded scan, newest first, across every repository."));
    }

    void aRowIsOneScan()
    {
        const TimeZone utc("UTC");
        PreviousRunsPresenter runs({.numbers = "de_DE", .dates = "de_DE"});
        runs.show(std::vector{RecordedScanBuilder().ofTotal(61'000).withCategory("a", 1).build()});
        QCOMPARE(at(runs, 0, "title"), QStringLiteral("webshop"));
        QCOMPARE(at(runs, 0, "detail"), QStringLiteral("4. März 2026, 09:15"));
        QCOMPARE(at(runs, 0, "value"), QStringLiteral("61.000"));
        QCOMPARE(at(runs, 0, "band"), QStringLiteral("2"));
        QCOMPARE(at(runs, 0, "valueCaption"), QString());
        QCOMPARE(at(runs, 0, "place"), QString());
    }

    void aScanWithoutCategoriesSaysSo()
    {
        PreviousRunsPresenter runs{TextLocale()};
        runs.show(scans(1));
        QCOMPARE(at(runs, 0, "valueCaption"), QStringLiteral("No category estimates"));
    }

    void oneNameAtTwoPathsIsToldApartByThePath()
    {
        PreviousRunsPresenter runs{TextLocale()};
        runs.show(std::vector{RecordedScanBuilder().in("/a").at(3).build(),
                              RecordedScanBuilder().in("/b").at(2).build(),
                              RecordedScanBuilder().named("other").in("/c").at(1).build()});
        QCOMPARE(at(runs, 0, "place"), QStringLiteral("/a"));
        QCOMPARE(at(runs, 1, "place"), QStringLiteral("/b"));
        QCOMPARE(at(runs, 2, "place"), QString());
        QCOMPARE(at(runs, 0, "title"), QStringLiteral("webshop"));
    }

    void theRowsAreAProperModel()
    {
        PreviousRunsPresenter runs{TextLocale()};
        const QAbstractItemModelTester tester(
            runs.rows(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        runs.show(scans(3));
        runs.show(scans(40));
        runs.show({});
    }

private:
    /// The oldest first; each has as many tokens as its place.
    static std::vector<RecordedScan> scans(int count)
    {
        std::vector<RecordedScan> scans;
        for (int place = 1; place <= count; ++place)
            scans.push_back(RecordedScanBuilder().at(place).ofTotal(place).build());
        return scans;
    }

    static QString at(PreviousRunsPresenter &runs, int row, const char *name)
    {
        const QAbstractItemModel *rows = runs.rows();
        return rows->index(row, 0).data(rows->roleNames().key(name)).toString();
    }
};

const RegisteredTest<PreviousRunsPresenterTest> registered("PreviousRunsPresenter");

} // namespace Loadwick

#include "PreviousRunsPresenterTest.moc"
