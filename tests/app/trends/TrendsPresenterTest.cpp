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

    void showsNoRepositoryWhileNothingIsRecorded()
    {
        QCOMPARE(m_trends->detail(), m_anyRepository);
        QVERIFY(m_trends->chart()->emptyText().startsWith(QStringLiteral("Scans are recorded ")));
        QVERIFY(!m_trends->summary()->hasScans());
        m_scanning->choose();
        QCOMPARE(m_trends->detail(), m_anyRepository);
        QVERIFY(m_trends->chart()->emptyText().startsWith(QStringLiteral("Scans are recorded ")));
    }

    void aRepositoryWithoutScansHasNoSummary()
    {
        record({RecordedScanBuilder().build()});
        m_scanning->choose();
        QCOMPARE(m_trends->detail(), m_anyRepository);
        QVERIFY(m_trends->chart()->emptyText().startsWith(QStringLiteral("Nothing recorded for ")));
        QVERIFY(!m_trends->summary()->hasScans());
        QCOMPARE(m_trends->recordedData()->runs()->count(), 1);
    }

    void namesTheRepository()
    {
        record({RecordedScanBuilder().build()});
        QCOMPARE(m_trends->detail(),
                 QStringLiteral("webshop: startup context over time, against the Lean, Heavy and "
                                "Excessive bands."));
        QCOMPARE(m_trends->chart()->emptyTitle(), QStringLiteral("One scan recorded"));
        QVERIFY(m_trends->summary()->hasScans());
    }

    void aRepositoryWithoutANameIsAnyRepository()
    {
        record({RecordedScanBuilder().named("").build()});
        QCOMPARE(m_trends->detail(), m_anyRepository);
    }

    void withoutASelectionShowsTheMostRecentlyScannedRepository()
    {
        record({RecordedScanBuilder().named("other").in("/srv/other").at(1).build(),
                RecordedScanBuilder().at(2).build()});
        QVERIFY(m_trends->detail().startsWith(QStringLiteral("webshop: ")));
        m_scanning->model.select(RepoSelection::fromUrl("/srv/other"));
        QVERIFY(m_trends->detail().startsWith(QStringLiteral("other: ")));
    }

    void drawsTheScansOfTheShownRepositoryOnly()
    {
        record({RecordedScanBuilder().at(1).ofTotal(1).build(),
                RecordedScanBuilder().in("/srv/other").at(2).ofTotal(2).build(),
                RecordedScanBuilder().at(3).ofTotal(3).build()});
        const std::vector<LineSample> &samples = m_trends->chart()->line()->geometry().samples();
        QCOMPARE(samples.size(), std::size_t(2));
        QCOMPARE(samples[0].total, 1);
        QCOMPARE(samples[1].total, 3);
        QCOMPARE(m_trends->summary()->drift(), QStringLiteral("+2"));
        QCOMPARE(m_trends->recordedData()->runs()->count(), 3);
        QVERIFY(m_trends->recordedData()->storageNote().startsWith(
            QStringLiteral("3 scans across 2 repositories, ")));
    }

    void showsAnExistingHistory()
    {
        record({RecordedScanBuilder().build()});
        TrendsPresenter late(m_scanning->model, TextLocale());
        QCOMPARE(late.chart()->emptyTitle(), QStringLiteral("One scan recorded"));
        QCOMPARE(late.recordedData()->runs()->count(), 1);
    }

    void signalsEveryRecordedScan()
    {
        QSignalSpy changed(m_trends.get(), &TrendsPresenter::changed);
        record({RecordedScanBuilder().build()});
        QCOMPARE(changed.count(), 1);
        record({});
        QCOMPARE(m_trends->recordedData()->runs()->count(), 0);
        QVERIFY(m_trends->chart()->emptyText().startsWith(QStringLiteral("Scans are recorded ")));
        QVERIFY(!m_trends->summary()->hasScans());
    }

private:
    void record(std::vector<RecordedScan> scans)
    {
        m_scanning->model.history().set(std::move(scans));
    }

    const QString m_anyRepository =
        QStringLiteral("Startup context over time, against the Lean, Heavy and Excessive bands.");
    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<TrendsPresenter> m_trends;
};

const RegisteredTest<TrendsPresenterTest> registered("TrendsPresenter");

} // namespace Loadwick

#include "TrendsPresenterTest.moc"
