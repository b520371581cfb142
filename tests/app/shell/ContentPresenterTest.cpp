#include "shell/ContentPresenter.h"

#include <QSignalSpy>
#include <QTest>

#include "support/FakeFolderChooser.h"
#include "support/ScanningModel.h"
#include "support/TestRegistry.h"

namespace Loadwick {

using Status = ContentPresenter::Status;

class ContentPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scanning = std::make_unique<ScanningModel>();
        m_chooser = std::make_unique<FakeFolderChooser>();
        m_content = std::make_unique<ContentPresenter>(m_scanning->model, *m_chooser);
    }

    void saysThatNoRepositoryIsSelected()
    {
        QVERIFY(!m_content->hasRepository());
        QCOMPARE(m_content->repositoryName(), QStringLiteral("No repository selected"));
        QCOMPARE(m_content->repositoryDetail(),
                 QStringLiteral("Choose a local repository to begin one scan."));
        QCOMPARE(m_content->statusTitle(), QStringLiteral("Ready to scan"));
        QCOMPARE(m_content->scanTitle(), QStringLiteral("Scan"));
        QVERIFY(!m_content->canScan());
        QVERIFY(m_content->canChoose());
    }

    void showsNameAndPathOfTheChosenRepository()
    {
        m_scanning->model.select({.url = "/srv/webshop", .displayName = "webshop"});
        QVERIFY(m_content->hasRepository());
        QCOMPARE(m_content->repositoryName(), QStringLiteral("webshop"));
        QCOMPARE(m_content->repositoryDetail(), QStringLiteral("/srv/webshop"));
    }

    void anyChosenRepositoryCanBeScannedAgain()
    {
        m_scanning->choose();
        QCOMPARE(m_content->scanTitle(), QStringLiteral("Scan Again"));
        QVERIFY(m_content->canScan());
    }

    void showsTheStateOfTheScan()
    {
        checkStatus(Status::Idle, "Ready to scan", "circle");
        m_scanning->choose();
        m_content->scan();
        checkStatus(Status::Scanning, "Scanning", "arrow.triangle.2.circlepath");
        m_scanning->finish();
        checkStatus(Status::Complete, "Scan complete", "checkmark.circle.fill");
        m_scanning->probe->answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
        m_content->scan();
        m_scanning->finish();
        checkStatus(Status::Failed, "Scan failed", "exclamationmark.triangle.fill");
    }

    void commandsAreDisabledWhileScanning()
    {
        m_scanning->choose();
        m_content->scan();
        QCOMPARE(m_content->scanTitle(), QStringLiteral("Scanning…"));
        QVERIFY(!m_content->canScan());
        QVERIFY(!m_content->canChoose());
        m_content->chooseFolder();
        QCOMPARE(m_chooser->openCount, 0);
    }

    void aChosenFolderIsSelectedByItsBytes()
    {
        m_chooser->answer = std::filesystem::path("/srv/caf\xE9");
        m_content->chooseFolder();
        QCOMPARE(m_scanning->model.selection().get()->url.string(), std::string("/srv/caf\xE9"));
        QCOMPARE(m_content->repositoryName(), QStringLiteral("caf\uFFFD"));
    }

    void choosingShowsTheOverview()
    {
        m_content->setPageIndex(2);
        m_chooser->answer = m_scanning->folder.path();
        m_content->chooseFolder();
        QCOMPARE(m_content->pageIndex(), 0);
    }

    void aCancelledChoiceChangesNothing()
    {
        m_content->setPageIndex(1);
        m_content->chooseFolder();
        QCOMPARE(m_chooser->openCount, 1);
        QCOMPARE(m_content->pageIndex(), 1);
        QVERIFY(!m_content->hasRepository());
    }

    void eachPageHasAKey()
    {
        const QAbstractItemModel &pages = *m_content->pages();
        const int role = pages.roleNames().key("shortcut", -1);
        QCOMPARE(pages.rowCount(), 3);
        for (int page = 0; page < 3; ++page)
            QCOMPARE(pages.index(page, 0).data(role).toString(),
                     QStringLiteral("Ctrl+%1").arg(page + 1));
    }

    void anIndexOutOfRangeShowsTheOverview()
    {
        m_content->setPageIndex(2);
        m_content->setPageIndex(-1);
        QCOMPARE(m_content->pageIndex(), 0);
        m_content->setPageIndex(2);
        m_content->setPageIndex(3);
        QCOMPARE(m_content->pageIndex(), 0);
    }

    void signalsOnlyAChangeOfThePage()
    {
        QSignalSpy changed(m_content.get(), &ContentPresenter::pageIndexChanged);
        m_content->setPageIndex(0);
        m_content->setPageIndex(1);
        m_content->setPageIndex(1);
        QCOMPARE(changed.count(), 1);
    }

    void aScanIsTheNextStepUntilThereIsAResult()
    {
        QVERIFY(!m_content->scanIsNextStep());
        m_scanning->choose();
        QVERIFY(m_content->scanIsNextStep());
        m_content->scan();
        QVERIFY(!m_content->scanIsNextStep());
        m_scanning->finish();
        QVERIFY(m_content->canScan());
        QVERIFY(!m_content->scanIsNextStep());
        m_scanning->choose();
        QVERIFY(m_content->scanIsNextStep());
    }

    void afterAFailureAScanIsTheNextStep()
    {
        m_scanning->probe->answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
        m_scanning->scan();
        QVERIFY(m_content->scanIsNextStep());
    }

    void signalsEveryChangeOfTheCommands()
    {
        QSignalSpy changed(m_content.get(), &ContentPresenter::commandsChanged);
        m_scanning->choose();
        QVERIFY(!changed.isEmpty());
        changed.clear();
        m_content->scan();
        QCOMPARE(changed.count(), 1);
    }

    void saysWhatAScanCosts()
    {
        QCOMPARE(m_content->allowanceDisclosure(),
                 QStringLiteral("Scanning starts one real Claude Code session in this folder and "
                                "uses a small part of your Claude allowance."));
    }

private:
    void checkStatus(Status status, const char *title, const char *symbol) const
    {
        QCOMPARE(m_content->status(), status);
        QCOMPARE(m_content->statusTitle(), QString::fromLatin1(title));
        QCOMPARE(m_content->statusSymbol(), QString::fromLatin1(symbol));
    }

    std::unique_ptr<ScanningModel> m_scanning;
    std::unique_ptr<FakeFolderChooser> m_chooser;
    std::unique_ptr<ContentPresenter> m_content;
};

const RegisteredTest<ContentPresenterTest> registered("ContentPresenter");

} // namespace Loadwick

#include "ContentPresenterTest.moc"
