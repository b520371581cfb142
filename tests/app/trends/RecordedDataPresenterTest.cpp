#include "trends/RecordedDataPresenter.h"

#include <QTest>

#include "samples/TemporaryFolder.h"
#include "support/RecordedScanBuilder.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

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
            .dispatcher = std::make_shared<SteppingDispatcher>(),
        });
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
        RecordedDataPresenter data(*m_model, TextLocale());
        data.showHistory();
        QCOMPARE(data.storageNote(),
                 stored + QStringLiteral(", stored on this Mac. Totals only — no instruction-file "
                                         "contents are ever written. The newest 200 are kept."));
        QTEST(data.deleteTitle(), "deleteTitle");
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
        RecordedDataPresenter data(*m_model, TextLocale());
        data.showHistory();
        QVERIFY(data.storageNote().startsWith(QStringLiteral("3 scans across 2 repositories,")));
    }

    void anEmptyHistoryCannotBeCleared()
    {
        RecordedDataPresenter data(*m_model, TextLocale());
        data.showHistory();
        QVERIFY(!data.canClear());
        record(1, 1);
        QVERIFY(data.canClear());
    }

    void clearsTheHistoryAndItsFile()
    {
        ScanHistoryStore store(m_folder->path());
        m_model->history().set(store.append(RecordedScanBuilder().build()));
        QVERIFY(std::filesystem::exists(store.fileURL()));
        RecordedDataPresenter data(*m_model, TextLocale());
        data.clear();
        QVERIFY(m_model->history().get().empty());
        QVERIFY(!std::filesystem::exists(store.fileURL()));
        QVERIFY(!data.canClear());
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

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<ScanModel> m_model;
};

const RegisteredTest<RecordedDataPresenterTest> registered("RecordedDataPresenter");

} // namespace Loadwick

#include "RecordedDataPresenterTest.moc"
