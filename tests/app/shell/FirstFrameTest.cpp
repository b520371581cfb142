// The contents of a window when it first shows: what is not visible does not exist yet.
#include <algorithm>
#include <fstream>
#include <string>

#include <QQuickItem>
#include <QTest>

#include "samples/GeneratedFiles.h"
#include "shell/AppPage.h"
#include "shell/ContentPresenter.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

constexpr qsizetype mostObjects = 175;
constexpr long mostLocaleData = 512; // KiB; the first figure alone takes three times as many

/// Whether the process has loaded a library of that name.
bool isLoaded(const std::string &library)
{
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find(library) != std::string::npos)
            return true;
    }
    return false;
}

/// KiB of the library's file that are in memory.
long residentKibibytes(const std::string &library)
{
    std::ifstream maps("/proc/self/smaps");
    long sum = 0;
    bool isOurs = false;
    for (std::string line; std::getline(maps, line);) {
        if (line.rfind("VmFlags:", 0) == 0)
            isOurs = false;
        else if (line.find(library) != std::string::npos)
            isOurs = true;
        else if (isOurs && line.rfind("Rss:", 0) == 0)
            sum += std::stol(line.substr(sizeof "Rss:"));
    }
    return sum;
}

} // namespace

class FirstFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<WindowFixture>();
        QVERIFY(!window().grabWindow().isNull());
    }
    void cleanup() { m_window.reset(); }

    // The first test: figures and dates of any other load the data for good.
    void aHistoryThatNoPageShowsLoadsNoLocaleData()
    {
        QVERIFY(isLoaded("libicudata"));
        m_window->loadwick().model().history().set(GeneratedFiles::scans(200));
        QVERIFY(m_window->loadwick().model().history().get().size() == 200);
        const long resident = residentKibibytes("libicudata");
        QVERIFY2(resident <= mostLocaleData, qPrintable(QString::number(resident)));
    }

    void createsOnlyVisibleItems_data()
    {
        QTest::addColumn<QByteArray>("type");
        for (const char *type :
             {"TrendsView", "CompareView", "OverviewLoading", "OverviewFailure", "OverviewReport",
              "SelectableText", "RepositoryPath", "RecentButton", "RecentMenu", "PlainToolTip",
              "ConfirmationDialog", "OnboardingView"})
            QTest::newRow(type) << QByteArray(type);
    }

    void createsOnlyVisibleItems()
    {
        QFETCH(const QByteArray, type);
        QVERIFY(isMade("ScanEmptyState"));
        QVERIFY(!isMade(type));
    }

    // The program draws all controls itself.
    void theToolkitsOwnControlsAreNotLoaded()
    {
        QVERIFY(isLoaded("libQt6QuickTemplates2"));
        QVERIFY(!isLoaded("Controls2"));
    }

    void theDialogsAreNotLoaded()
    {
        QVERIFY(isLoaded("libQt6QuickTemplates2"));
        QVERIFY(!isLoaded("Dialogs"));
    }

    void createsFewObjects()
    {
        const qsizetype count = window().findChildren<QObject *>().size();
        QVERIFY2(count > mostObjects / 2 && count <= mostObjects,
                 qPrintable(QString::number(count)));
    }

    void aPageIsCreatedOnFirstUseAndKept_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("Trends") << static_cast<int>(AppPage::trends) << QByteArray("TrendsView");
        QTest::newRow("Compare") << static_cast<int>(AppPage::compare) << QByteArray("CompareView");
    }

    void aPageIsCreatedOnFirstUseAndKept()
    {
        QFETCH(const int, page);
        QFETCH(const QByteArray, type);
        m_window->loadwick().content().setPageIndex(page);
        const QObject *const made = find(type);
        QVERIFY(made != nullptr);
        m_window->loadwick().content().setPageIndex(static_cast<int>(AppPage::overview));
        m_window->loadwick().content().setPageIndex(page);
        QCOMPARE(find(type), made);
    }

    void thePathIsCreatedWithTheRepository()
    {
        m_window->choose(m_window->folder().path());
        QVERIFY(isMade("RepositoryPath"));
        QVERIFY(m_window->shows(m_window->loadwick().content().repositoryDetail()));
    }

    void aFailureStateIsCreatedOnDemandAndDestroyedWithIt()
    {
        ScanModel &model = m_window->loadwick().model();
        model.select(RepoSelection::fromUrl(m_window->folder().path()));
        model.state().set(ScanState::failed(ProbeError::notAuthenticated()));
        QVERIFY(isMade("OverviewFailure"));
        model.state().set(ScanState::scanning());
        QVERIFY(isMade("OverviewLoading"));
        QTRY_VERIFY(!isMade("OverviewFailure"));
    }

private:
    [[nodiscard]] QQuickWindow &window() const { return m_window->loadwick().window(); }

    /// An object of that component; null if there is none.
    [[nodiscard]] const QObject *find(const QByteArray &type) const
    {
        const QList<QObject *> objects = window().findChildren<QObject *>();
        const auto found = std::ranges::find_if(objects, [&type](const QObject *object) {
            return QByteArray(object->metaObject()->className()).startsWith(type + "_QMLTYPE");
        });
        return found == objects.end() ? nullptr : *found;
    }
    [[nodiscard]] bool isMade(const QByteArray &type) const { return find(type) != nullptr; }

    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<FirstFrameTest> registered("FirstFrame");

} // namespace Loadwick

#include "FirstFrameTest.moc"
