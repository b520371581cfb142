#include <memory>
#include <string>
#include <vector>

#include <QTest>

#include "compare/ComparePresenter.h"
#include "overview/LatestChangePresenter.h"
#include "overview/OverviewPresenter.h"
#include "samples/SampleReport.h"
#include "samples/TemporaryFolder.h"
#include "support/RecordedScanBuilder.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"
#include "trends/TrendsPresenter.h"

namespace Loadwick {

/// What the pages say while the history is on its way from the disk or to it.
class HistoryArrivalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TemporaryFolder>();
        m_dispatcher = std::make_shared<SteppingDispatcher>();
    }

    void cleanup()
    {
        m_model.reset();
        m_dispatcher->runAll();
    }

    void thePagesSayThatTheScansAreBeingRead()
    {
        start();
        TrendsPresenter trends(*m_model, TextLocale());
        ComparePresenter compare(*m_model, TextLocale());
        const QString reading = QStringLiteral("Reading the recorded scans…");
        QCOMPARE(trends.chart()->emptyText(), reading);
        QCOMPARE(trends.recordedData()->storageNote(), QString());
        QVERIFY(!trends.recordedData()->canClear());
        QCOMPARE(compare.emptyTitle(), reading);
        QCOMPARE(compare.emptyText(), QString());
        m_dispatcher->runAll();
        QVERIFY(trends.chart()->emptyText().startsWith(QStringLiteral("Scans are recorded ")));
        QVERIFY(trends.recordedData()->storageNote().startsWith(QStringLiteral("0 scans")));
        QCOMPARE(compare.emptyTitle(), QStringLiteral("No recorded scans yet"));
    }

    void thePagesShowTheScansOnceTheyAreRead()
    {
        record(RecordedScanBuilder().in("/a").at(1).build());
        record(RecordedScanBuilder().in("/b").at(2).build());
        start();
        TrendsPresenter trends(*m_model, TextLocale());
        ComparePresenter compare(*m_model, TextLocale());
        m_dispatcher->runAll();
        QCOMPARE(trends.chart()->emptyTitle(), QStringLiteral("One scan recorded"));
        QVERIFY(trends.recordedData()->canClear());
        QCOMPARE(compare.emptyTitle(), QString());
        QCOMPARE(compare.columnCount(), 2);
    }

    void aLargeHistoryIsComparedInTheBackground()
    {
        start();
        ComparePresenter compare(*m_model, TextLocale(), m_dispatcher);
        m_dispatcher->runAll();
        m_model->history().set(largeHistory(2));
        QCOMPARE(compare.emptyTitle(), QStringLiteral("No recorded scans yet"));
        m_dispatcher->runAll();
        QCOMPARE(compare.columnCount(), 2);
        QCOMPARE(compare.emptyTitle(), QString());
    }

    void anOlderComparisonDoesNotReplaceANewerOne()
    {
        start();
        ComparePresenter compare(*m_model, TextLocale(), m_dispatcher);
        m_dispatcher->runAll();
        m_model->history().set(largeHistory(2));
        m_model->history().set(largeHistory(3));
        m_dispatcher->stepNewest();
        QCOMPARE(compare.columnCount(), 3);
        m_dispatcher->step();
        QCOMPARE(compare.columnCount(), 3);
        m_model->history().set(largeHistory(2));
        m_model->history().set({});
        m_dispatcher->runAll();
        QCOMPARE(compare.emptyTitle(), QStringLiteral("No recorded scans yet"));
    }

    void aLargeHistoryIsComparedAtOnceIfNoThreadCanBeStarted()
    {
        start();
        ComparePresenter compare(*m_model, TextLocale(), m_dispatcher);
        m_dispatcher->runAll();
        m_dispatcher->refuseBackground();
        m_model->history().set(largeHistory(2));
        QCOMPARE(compare.columnCount(), 2);
    }

    // The two scans before have the same total as the one that is being recorded.
    void theChangeIsShownOnceTheScanIsRecorded()
    {
        const std::string path = sampleReport().repositoryPath;
        const std::int64_t total = sampleReport().total;
        record(RecordedScanBuilder().in(path).at(1).ofTotal(total - 5).build());
        record(RecordedScanBuilder().in(path).at(2).ofTotal(total).build());
        start();
        LatestChangePresenter change(*m_model, TextLocale());
        change.show(sampleReport());
        QVERIFY(!change.isKnown());
        m_dispatcher->runAll();
        QVERIFY(change.isKnown());
        m_model->clearHistory();
        change.show(sampleReport());
        QVERIFY(!change.isKnown());
        m_dispatcher->runAll();
        QVERIFY(!change.isKnown());
    }

    // An earlier scan of the repository has the same total.
    void aReportHasNoDateUntilItsScanIsRecorded()
    {
        start();
        OverviewPresenter overview(*m_model, TextLocale());
        const LatestChangePresenter *change = overview.latestChange();
        m_dispatcher->runAll();
        scan();
        m_dispatcher->runAll();
        const QByteArray dated = overview.table()();
        QVERIFY(!change->isKnown());
        scan();
        const QByteArray undated = overview.table()();
        QVERIFY2(undated.size() < dated.size(), undated.constData());
        QVERIFY(!change->isKnown());
        m_dispatcher->runAll();
        QCOMPARE(overview.table()().size(), dated.size());
        QVERIFY(change->isKnown());
    }

private:
    /// Performs a scan up to its result.
    void scan()
    {
        m_model->select(RepoSelection::fromUrl(m_folder->path()));
        m_model->scan();
        while (m_model->state().get().isScanning())
            m_dispatcher->step();
    }

    static std::vector<RecordedScan> largeHistory(int repositories)
    {
        std::vector<RecordedScan> scans;
        for (int number = 0; number < repositories; ++number) {
            scans.push_back(RecordedScanBuilder().in("/" + std::to_string(number)).build());
            scans.back().categories =
                RecordedCategories::List(15'000, {.name = "System prompt", .tokens = 1});
        }
        return scans;
    }

    void record(const RecordedScan &scan)
    {
        static_cast<void>(ScanHistoryStore(m_folder->path()).append(scan));
    }

    void start()
    {
        m_model = std::make_unique<ScanModel>(ScanModel::Collaborators{
            .probeRunner = std::make_shared<FakeProbe>(),
            .instructionScanner = std::make_shared<FakeInstructionScanner>(),
            .historyStore = std::make_shared<ScanHistoryStore>(m_folder->path()),
            .dispatcher = m_dispatcher});
    }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::shared_ptr<SteppingDispatcher> m_dispatcher;
    std::unique_ptr<ScanModel> m_model;
};

namespace {

const RegisteredTest<HistoryArrivalTest> registered("HistoryArrival");

} // namespace
} // namespace Loadwick

#include "HistoryArrivalTest.moc"
