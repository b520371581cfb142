#include "trends/RecordedDataPresenter.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include "samples/TemporaryFolder.h"
#include "support/RecordedScanBuilder.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"
#include "support/TimeZone.h"
#include "text/OnLinux.h"

namespace Loadwick {

class RecordedDataPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TemporaryFolder>();
        m_model = std::make_unique<ScanModel>(ScanModel::Collaborators{
            .probeRunner = std::make_shared<FakeProbe>(),
            .instructionScanner = std::make_shared<FakeInstructionScanner>(),
            .historyStore = std::make_unique<ScanHistoryStore>(m_folder->path()),
            .dispatcher = m_dispatcher,
        });
        QCOMPARE(RecordedDataPresenter(*m_model, TextLocale()).storageNote(), QString());
        m_dispatcher->runAll();
        m_data = std::make_unique<RecordedDataPresenter>(*m_model, TextLocale());
    }

    void saysWhatIsStored_data()
    {
        QTest::addColumn<int>("scanCount");
        QTest::addColumn<int>("repositoryCount");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("deleteTitle");
        const auto row = [](int scanCount, int repositoryCount, const char *stored,
                            const char *deleteTitle) {
            QTest::newRow(stored) << scanCount << repositoryCount << QString::fromUtf8(stored)
                                  << QString::fromUtf8(deleteTitle);
        };
        row(0, 1, "0 scans across 0 repositories", "Delete 0 Recorded Scans");
        row(1, 1, "1 scan across 1 repository", "Delete 1 Recorded Scan");
        row(7, 1, "7 scans across 1 repository", "Delete 7 Recorded Scans");
        row(2, 2, "2 scans across 2 repositories", "Delete 2 Recorded Scans");
        row(200, 200, "200 scans across 200 repositories", "Delete 200 Recorded Scans");
    }

    void saysWhatIsStored()
    {
        QFETCH(const int, scanCount);
        QFETCH(const int, repositoryCount);
        QFETCH(const QString, stored);
        record(scanCount, repositoryCount);
        m_data->showHistory();
        QCOMPARE(m_data->storageNote(),
                 stored + QStringLiteral(", stored on this Mac. Totals only — no instruction-file "
                                         "contents are ever written. The newest 200 are kept."));
        QTEST(m_data->deleteTitle(), "deleteTitle");
    }

    void namesTheFileOnLinux()
    {
        const auto expected = onLinux("On Linux the file is:");
        QCOMPARE(m_data->storagePlatformNote().toStdString(), expected.value_or(""));
        QCOMPARE(m_data->historyFile().toStdString(),
                 (m_folder->path() / "scan-history.json").string());
    }

    void writesTheLimitInTheLocalesFiguresAndCountsInPlainDecimal()
    {
        record(12, 1);
        RecordedDataPresenter data(*m_model, {.numbers = "ar_EG", .dates = "ar_EG"});
        data.showHistory();
        QVERIFY(data.storageNote().startsWith(QStringLiteral("12 scans across 1 repository")));
        QVERIFY(data.storageNote().contains(QStringLiteral("The newest ٢٠٠ are kept.")));
        QCOMPARE(data.deleteTitle(), QStringLiteral("Delete 12 Recorded Scans"));
    }

    void repositoriesOfOneNameCountByTheirPaths()
    {
        m_model->history().set({RecordedScanBuilder().in("/a").build(),
                                RecordedScanBuilder().in("/b").build(),
                                RecordedScanBuilder().in("/a").named("other").build()});
        m_data->showHistory();
        QVERIFY(m_data->storageNote().startsWith(QStringLiteral("3 scans across 2 repositories,")));
    }

    void anEmptyHistoryCannotBeCleared()
    {
        m_data->showHistory();
        QVERIFY(!m_data->canClear());
        record(1, 1);
        QVERIFY(m_data->canClear());
    }

    void saysNothingAboutScansThatAreBeingRead()
    {
        ScanModel reading({.probeRunner = std::make_shared<FakeProbe>(),
                           .instructionScanner = std::make_shared<FakeInstructionScanner>(),
                           .historyStore = std::make_unique<ScanHistoryStore>(m_folder->path()),
                           .dispatcher = m_dispatcher});
        RecordedDataPresenter data(reading, TextLocale());
        data.showHistory();
        QCOMPARE(data.runsDetail(), QString());
        m_dispatcher->runAll();
        QVERIFY(data.runsDetail().startsWith(QStringLiteral("Every recorded scan")));
    }

    void canBeClearedOnceItsNumberIsKnown()
    {
        record(1, 1);
        m_model->clearHistory();
        QVERIFY(!m_data->canClear());
        m_dispatcher->runAll();
        record(1, 1);
        QVERIFY(m_data->canClear());
    }

    void clearsTheHistoryAndItsFile()
    {
        ScanHistoryStore store(m_folder->path());
        m_model->history().set(store.append(RecordedScanBuilder().build()));
        QVERIFY(std::filesystem::exists(store.fileURL()));
        m_data->clear();
        m_dispatcher->runAll();
        QVERIFY(m_model->history().get().empty());
        QVERIFY(!std::filesystem::exists(store.fileURL()));
        QVERIFY(!m_data->canClear());
    }

    void listsThirtyScansAsEveryScan()
    {
        show(*m_data, scans(30));
        QCOMPARE(m_data->runsDetail(),
                 QStringLiteral("Every recorded scan, newest first, across every repository."));
        QCOMPARE(m_data->runs()->count(), 30);
    }

    void listsTheNewestThirtyOfThirtyOneScans()
    {
        show(*m_data, scans(31));
        QCOMPARE(m_data->runsDetail(),
                 QStringLiteral("The newest 30 of 31 recorded scans, across every "
                                "repository."));
        QCOMPARE(m_data->runs()->count(), 30);
        QCOMPARE(run(0, "value"), QStringLiteral("31"));
        QCOMPARE(run(29, "value"), QStringLiteral("2"));
    }

    void writesTheNumberOfScansInPlainDecimal()
    {
        RecordedDataPresenter data(*m_model, {.numbers = "ar_EG", .dates = "ar_EG"});
        show(data, scans(200));
        QVERIFY(data.runsDetail().startsWith(QStringLiteral("The newest 30 of 200 ")));
    }

    void listsNothingWithoutScans()
    {
        show(*m_data, {});
        QCOMPARE(m_data->runs()->count(), 0);
        QCOMPARE(m_data->runsDetail(),
                 QStringLiteral("Every recorded scan, newest first, across every repository."));
    }

    void aRunOfASingleTokenIsNotInThePlural()
    {
        show(*m_data, {RecordedScanBuilder().ofTotal(1).withCategory("a", 1).build()});
        QVERIFY(m_data->runs()
                    ->text(0, QStringLiteral("sentence"))
                    .endsWith(QStringLiteral(", 1 token, Lean")));
    }

    void aRunIsOneScan()
    {
        const TimeZone utc("UTC");
        RecordedDataPresenter data(*m_model, {.numbers = "de_DE", .dates = "de_DE"});
        show(data, {RecordedScanBuilder().ofTotal(61'000).withCategory("a", 1).build()});
        QCOMPARE(data.runs()->text(0, QStringLiteral("title")), QStringLiteral("webshop"));
        QCOMPARE(data.runs()->text(0, QStringLiteral("detail")),
                 QStringLiteral("4. März 2026, 09:15"));
        QCOMPARE(data.runs()->text(0, QStringLiteral("value")), QStringLiteral("61.000"));
        QCOMPARE(data.runs()->text(0, QStringLiteral("band")), QStringLiteral("2"));
        QCOMPARE(data.runs()->text(0, QStringLiteral("valueCaption")), QString());
        QCOMPARE(data.runs()->text(0, QStringLiteral("path")), QString());
    }

    void aScanWithoutCategoriesSaysSo()
    {
        show(*m_data, scans(1));
        QCOMPARE(run(0, "valueCaption"), QStringLiteral("No category estimates"));
    }

    void readsARunAsOneSentence()
    {
        const TimeZone utc("UTC");
        show(*m_data, {RecordedScanBuilder().at(60).ofTotal(61'000).withCategory("a", 1).build(),
                       RecordedScanBuilder().at(0).ofTotal(30'000).build()});
        QCOMPARE(run(0, "sentence"),
                 QStringLiteral("webshop, %1, 61,000 tokens, Excessive").arg(run(0, "detail")));
        QCOMPARE(run(1, "sentence"),
                 QStringLiteral("webshop, %1, 30,000 tokens, Heavy, No category estimates")
                     .arg(run(1, "detail")));
        QVERIFY(run(0, "detail") != run(1, "detail"));
    }

    void distinguishesNamesakesByPath()
    {
        show(*m_data, {RecordedScanBuilder().in("/a").at(3).build(),
                       RecordedScanBuilder().in("/b").at(2).build(),
                       RecordedScanBuilder().named("other").in("/c").at(1).build()});
        QCOMPARE(run(0, "path"), QStringLiteral("/a"));
        QCOMPARE(run(1, "path"), QStringLiteral("/b"));
        QCOMPARE(run(2, "path"), QString());
        QCOMPARE(run(0, "title"), QStringLiteral("webshop"));
    }

    void theRunsBehaveAsAModel()
    {
        const QAbstractItemModelTester tester(
            m_data->runs(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        show(*m_data, scans(3));
        show(*m_data, scans(40));
        show(*m_data, {});
    }

private:
    void record(int scanCount, int repositoryCount)
    {
        std::vector<RecordedScan> scans;
        for (int index = 0; index < scanCount; ++index)
            scans.push_back(RecordedScanBuilder()
                                .in("/" + std::to_string(index % repositoryCount))
                                .at(index)
                                .build());
        m_model->history().set(std::move(scans));
    }

    [[nodiscard]] QString run(int row, const char *role) const
    {
        return m_data->runs()->text(row, QString::fromLatin1(role));
    }

    /// Oldest first; the nth has n tokens.
    static std::vector<RecordedScan> scans(int count)
    {
        std::vector<RecordedScan> scans;
        for (int number = 1; number <= count; ++number)
            scans.push_back(RecordedScanBuilder().at(number).ofTotal(number).build());
        return scans;
    }

    void show(RecordedDataPresenter &data, std::vector<RecordedScan> scans)
    {
        m_model->history().set(std::move(scans));
        data.showHistory();
    }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::shared_ptr<SteppingDispatcher> m_dispatcher = std::make_shared<SteppingDispatcher>();
    std::unique_ptr<ScanModel> m_model;
    std::unique_ptr<RecordedDataPresenter> m_data;
};

const RegisteredTest<RecordedDataPresenterTest> registered("RecordedDataPresenter");

} // namespace Loadwick

#include "RecordedDataPresenterTest.moc"
