#include "trends/TrendsPresenter.h"

#include <QSignalSpy>
#include <QTest>

#include "support/RecordedScanBuilder.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class TrendsPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scanning = std::make_unique<ScanningModel>();
        m_trends = std::make_unique<TrendsPresenter>(m_scanning->model, TextLocale());
    }

    void saysHowATrendComesAboutWhileNothingIsRecorded()
    {
        QCOMPARE(m_trends->detail(), m_anyRepository);
        QCOMPARE(m_trends->emptyTitle(), QString());
        QCOMPARE(m_trends->emptyText(), m_nothingRecorded);
        m_scanning->choose();
        QCOMPARE(m_trends->emptyText(), m_nothingRecorded);
    }

    void saysThatNothingIsRecordedForThisRepository()
    {
        record({RecordedScanBuilder().build()});
        m_scanning->choose();
        QCOMPARE(m_trends->detail(), m_anyRepository);
        QCOMPARE(m_trends->emptyTitle(), QString());
        QCOMPARE(m_trends->emptyText(),
                 QStringLiteral("Nothing recorded for this repository yet. Scan it twice and its "
                                "trend appears here."));
    }

    void saysWhatTheOneRecordedScanMeasured()
    {
        record({RecordedScanBuilder().build()});
        QCOMPARE(m_trends->detail(),
                 QStringLiteral("webshop: startup context over time, against the Lean, Heavy and "
                                "Excessive bands."));
        QCOMPARE(m_trends->emptyTitle(), QStringLiteral("One scan recorded"));
        QCOMPARE(m_trends->emptyText(),
                 QStringLiteral("The one on record measured 27,654 tokens on Mar 4, 2026. A trend "
                                "needs at least two scans of webshop. Scan again to plot a line."));
    }

    void callsARepositoryWithoutANameThisRepository()
    {
        record({RecordedScanBuilder().named("").build()});
        QCOMPARE(m_trends->detail(), m_anyRepository);
        QVERIFY(m_trends->emptyText().contains(
            QStringLiteral(" needs at least two scans of this repository. Scan again")));
    }

    void claimsNothingWithTwoScans()
    {
        record({RecordedScanBuilder().at(1).build(), RecordedScanBuilder().at(2).build()});
        QCOMPARE(m_trends->emptyTitle(), QString());
        QCOMPARE(m_trends->emptyText(), QString());
    }

    void withoutASelectionShowsTheMostRecentlyScannedRepository()
    {
        record({RecordedScanBuilder().named("other").in("/srv/other").at(1).build(),
                RecordedScanBuilder().at(2).build()});
        QVERIFY(m_trends->detail().startsWith(QStringLiteral("webshop: ")));
        m_scanning->model.select(RepoSelection::fromUrl("/srv/other"));
        QVERIFY(m_trends->detail().startsWith(QStringLiteral("other: ")));
    }

    void followsTheLocale()
    {
        const TrendsPresenter german(m_scanning->model, {.numbers = "de_DE", .dates = "de_DE"});
        record({RecordedScanBuilder().build()});
        QVERIFY(german.emptyText().contains(QStringLiteral("27.654 tokens on 4. März 2026. ")));
    }

    void showsTheHistoryThatItFinds()
    {
        record({RecordedScanBuilder().build()});
        const TrendsPresenter late(m_scanning->model, TextLocale());
        QCOMPARE(late.emptyTitle(), QStringLiteral("One scan recorded"));
    }

    void tellsOfEveryRecordedScan()
    {
        QSignalSpy changed(m_trends.get(), &TrendsPresenter::changed);
        record({RecordedScanBuilder().build()});
        QCOMPARE(changed.count(), 1);
        record({});
        QCOMPARE(m_trends->emptyText(), m_nothingRecorded);
    }

private:
    void record(std::vector<RecordedScan> scans)
    {
        m_scanning->model.history().set(std::move(scans));
    }

    const QString m_anyRepository =
        QStringLiteral("Startup context over time, against the Lean, Heavy and Excessive bands.");
    const QString m_nothingRecorded =
        QStringLiteral("Scans are recorded locally as you run them. Run one scan, then another, "
                       "and the trend appears here.");
    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<TrendsPresenter> m_trends;
};

const RegisteredTest<TrendsPresenterTest> registered("TrendsPresenter");

} // namespace Loadwick

#include "TrendsPresenterTest.moc"
