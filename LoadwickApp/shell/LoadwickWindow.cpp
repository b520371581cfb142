#include "shell/LoadwickWindow.h"

#include <chrono>
#include <utility>

#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QQmlComponent>
#include <QScreen>
#include <QTimer>
#include <QUrl>

#include "base/QmlObject.h"
#include "base/QtTaskDispatcher.h"
#include "base/SpareMemory.h"
#include "compare/ComparePresenter.h"
#include "desktop/DesktopNoticeBoard.h"
#include "export/PageExport.h"
#include "export/SavedFile.h"
#include "history/WeeklyKPIReader.h"
#include "onboarding/OnboardingPresenter.h"
#include "onboarding/PreferencesCompletionStore.h"
#include "overview/OverviewPresenter.h"
#include "posix/ProcessContext.h"
#include "probe/ProbeRunner.h"
#include "report/InstructionFileScanner.h"
#include "shell/ContentPresenter.h"
#include "shell/FolderDrop.h"
#include "shell/RecentRepositories.h"
#include "shell/ScanNotices.h"
#include "text/Fatal.h"
#include "theme/ApplicationLook.h"
#include "theme/ApplicationStyle.h"
#include "theme/DesktopAppearanceSource.h"
#include "trends/TrendsPresenter.h"

namespace Loadwick {
namespace {

constexpr int titleBarHeight = 40; // unknown before the window is shown

constexpr std::chrono::seconds longestWait(1); // a minimised window has no first frame

QUrl homeUrl()
{
    return QUrl::fromLocalFile(QDir::homePath());
}

/// For a window without a walk-through.
class AlwaysCompleted final : public OnboardingCompletionStore
{
public:
    [[nodiscard]] bool onboardingCompleted() const override { return true; }
    void setOnboardingCompleted(bool) override {}
};

std::unique_ptr<OnboardingPresenter>
onboardingOver(std::shared_ptr<OnboardingCompletionStore> store)
{
    if (!store)
        store = std::make_shared<AlwaysCompleted>();
    return std::make_unique<OnboardingPresenter>(std::move(store));
}

} // namespace

LoadwickWindow::Collaborators
LoadwickWindow::Collaborators::ofUser(std::shared_ptr<Shutdown> shutdown)
{
    const Environment environment = currentEnvironment();
    const std::filesystem::path dataFolder = ScanHistoryStore::defaultDirectory(environment);
    const std::string home = homeFolder(environment);
    return {
        .scan = {.probeRunner = std::make_shared<ProbeRunner>(
                     ProbeRunner::userSettings(environment, std::move(shutdown))),
                 .instructionScanner = std::make_shared<InstructionFileScanner>(
                     InstructionFileScanner::Settings{.home = home}),
                 .historyStore = std::make_unique<ScanHistoryStore>(dataFolder)},
        .completionStore = std::make_shared<PreferencesCompletionStore>(
            PreferencesCompletionStore::defaultFile(environment)),
        .appearance =
            [](const auto &dispatcher) { return DesktopAppearanceSource::ofUser(dispatcher); },
        .notices =
            [](const auto &dispatcher) { return std::make_unique<DesktopNoticeBoard>(dispatcher); },
        .locale = TextLocale::fromEnvironment(environment),
        .weeklyLog = WeeklyKPIReader::defaultPath(home),
        .home = home,
        .dataFolder = dataFolder,
    };
}

LoadwickWindow::LoadwickWindow(Collaborators given)
    : m_onboarding(onboardingOver(std::move(given.completionStore))),
      m_chooser(given.folderChooser ? std::move(given.folderChooser)
                                    : platformFolderChooser(homeUrl())),
      m_saver(given.fileSaver ? std::move(given.fileSaver) : platformFileSaver(homeUrl()))
{
    if (!given.scan.dispatcher)
        given.scan.dispatcher = std::make_shared<QtTaskDispatcher>(m_interface);
    const std::shared_ptr<TaskDispatcher> dispatcher = given.scan.dispatcher;
    // Started first: its answers arrive while everything else is created.
    if (given.appearance)
        given.appearance(dispatcher).release()->setParent(&m_engine);
    given.scan.loadsHistoryAtOnce = false;
    m_model = std::make_unique<ScanModel>(std::move(given.scan));
    m_fileOpener = std::make_unique<FileOpener>(dispatcher, std::move(given.desktop));
    makePresenters(dispatcher, given.locale, given.home);
    makeCommands(dispatcher, given.locale);
    makeWindow();
    if (!given.title.isEmpty())
        m_window->setTitle(given.title);
    // The page that was left has freed its pictures, the reader of the history its text.
    m_spareMemory = std::make_unique<SpareMemory>(std::make_shared<QtTaskDispatcher>(m_interface));
    QObject::connect(m_content.get(), &ContentPresenter::pageIndexChanged, m_window.get(),
                     [this] { m_spareMemory->giveBackSoon(); });
    m_model->history().observe({.didChange = [this] { m_spareMemory->giveBackSoon(); }});
    m_chooser->attach(*m_window);
    m_saver->attach(*m_window);
    if (given.notices)
        putNoticesOn(given.notices(dispatcher));
    if (!given.weeklyLog.empty())
        m_overview->weekly()->load(given.weeklyLog, dispatcher);
    presentOnAppearance(dispatcher);
}

LoadwickWindow::~LoadwickWindow() = default;

void LoadwickWindow::show()
{
    const QSize room = m_window->screen()->availableSize() - QSize(0, titleBarHeight);
    m_window->resize(firstSize(m_window->size(), m_window->minimumSize(), room));
    m_window->show();
    m_window->requestActivate();
}

QSize LoadwickWindow::firstSize(QSize wanted, QSize least, QSize room)
{
    return wanted.boundedTo(room).expandedTo(least);
}

void LoadwickWindow::makePresenters(const std::shared_ptr<TaskDispatcher> &dispatcher,
                                    const TextLocale &locale, const std::filesystem::path &home)
{
    m_content = std::make_unique<ContentPresenter>(*m_model, *m_chooser);
    m_overview = std::make_unique<OverviewPresenter>(*m_model, locale,
                                                     &std::chrono::steady_clock::now, home);
    m_overview->files()->openWith(*m_fileOpener);
    m_trends = std::make_unique<TrendsPresenter>(*m_model, locale);
    m_trends->recordedData()->openWith(*m_fileOpener);
    m_compare = std::make_unique<ComparePresenter>(*m_model, locale, dispatcher);
}

void LoadwickWindow::makeCommands(const std::shared_ptr<TaskDispatcher> &dispatcher,
                                  const TextLocale &locale)
{
    m_folderDrop = std::make_unique<FolderDrop>(*m_content, dispatcher);
    m_recent = std::make_unique<RecentRepositories>(*m_model, *m_content, dispatcher, locale);
    const auto reportName = [this] {
        return SavedFile::suggestedName(QStringLiteral("loadwick-report"),
                                        m_overview->repositoryName(), m_overview->day());
    };
    m_overviewExport = std::make_unique<PageExport>(
        PageExport::Contents{.name = reportName,
                             .table = [this] { return m_overview->table(); },
                             .report = [this] { return m_overview->document(); }},
        *m_saver, dispatcher);
    const auto trendName = [this] {
        return SavedFile::suggestedName(QStringLiteral("loadwick-trend"),
                                        m_trends->repositoryName());
    };
    m_trendsExport = std::make_unique<PageExport>(
        PageExport::Contents{.name = trendName, .table = [this] { return m_trends->table(); }},
        *m_saver, dispatcher);
    m_compareExport = std::make_unique<PageExport>(
        PageExport::Contents{.name = [] { return QStringLiteral("loadwick-comparison"); },
                             .table = [this] { return m_compare->table(); }},
        *m_saver, dispatcher);
}

void LoadwickWindow::makeWindow()
{
    ApplicationStyle::addModulePath(m_engine);
    const QUrl page(QStringLiteral("qrc:/qt/qml/Loadwick/Main.qml"));
    const QQmlComponent types(&m_engine, page); // before any text: the fonts are still being read
    ApplicationStyle::applyFont(*qGuiApp);
    ApplicationLook::follow(m_engine);
    QString failure;
    std::unique_ptr<QObject> made =
        qmlObject(m_engine, page,
                  {{QStringLiteral("content"), QVariant::fromValue(m_content.get())},
                   {QStringLiteral("overview"), QVariant::fromValue(m_overview.get())},
                   {QStringLiteral("trends"), QVariant::fromValue(m_trends.get())},
                   {QStringLiteral("compare"), QVariant::fromValue(m_compare.get())},
                   {QStringLiteral("onboarding"), QVariant::fromValue(m_onboarding.get())},
                   {QStringLiteral("folderDrop"), QVariant::fromValue(m_folderDrop.get())},
                   {QStringLiteral("recent"), QVariant::fromValue(m_recent.get())},
                   {QStringLiteral("overviewExport"), QVariant::fromValue(m_overviewExport.get())},
                   {QStringLiteral("trendsExport"), QVariant::fromValue(m_trendsExport.get())},
                   {QStringLiteral("compareExport"), QVariant::fromValue(m_compareExport.get())}},
                  failure);
    if (!made)
        fatalError(failure.toStdString());
    m_window.reset(qobject_cast<QQuickWindow *>(made.release()));
    if (!m_window)
        fatalError("Main.qml makes no window.");
    // A long history would take the second processor from the first frame.
    const auto loadHistory = [this] { m_model->loadHistory(); };
    QTimer::singleShot(longestWait, m_content.get(), loadHistory);
    QObject::connect(
        m_window.get(), &QQuickWindow::frameSwapped, m_content.get(),
        [loadHistory] {
            loadHistory();
            // For desktops that do not take it from the desktop entry.
            const QIcon icon(QStringLiteral(":/qt/qml/Loadwick/application.png"));
            QGuiApplication::setWindowIcon(icon);
        },
        Qt::SingleShotConnection);
}

void LoadwickWindow::putNoticesOn(std::unique_ptr<NoticeBoard> board)
{
    m_noticeBoard = std::move(board);
    m_scanNotices = std::make_unique<ScanNotices>(
        ScanNotices::Words{.content = *m_content, .overview = *m_overview}, *m_window,
        *m_noticeBoard);
}

void LoadwickWindow::presentOnAppearance(const std::shared_ptr<TaskDispatcher> &dispatcher)
{
    QObject::connect(m_window.get(), &QWindow::visibleChanged, m_onboarding.get(),
                     [onboarding = m_onboarding.get(), dispatcher](bool isVisible) {
                         if (isVisible)
                             onboarding->presentOnboardingIfFirstLaunch(dispatcher);
                         else
                             onboarding->cancel();
                     });
}

} // namespace Loadwick
