#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include <QQmlEngine>
#include <QQuickWindow>
#include <QSize>

#include "desktop/FileOpener.h"
#include "desktop/NoticeBoard.h"
#include "dialogs/FileSaver.h"
#include "dialogs/FolderChooser.h"
#include "model/OnboardingFlow.h"
#include "model/ScanModel.h"
#include "process/Shutdown.h"
#include "text/TextLocale.h"
#include "theme/AppearanceSource.h"

namespace Loadwick {

class ComparePresenter;
class ContentPresenter;
class FolderDrop;
class OnboardingPresenter;
class OverviewPresenter;
class PageExport;
class RecentRepositories;
class ScanNotices;
class SpareMemory;
class TrendsPresenter;

/// The program's one window with the model behind it. Make it after the application object, on its
/// thread. Its destructor waits for no background work: late outcomes are dropped.
class LoadwickWindow
{
public:
    using MakeAppearance = std::function<std::unique_ptr<AppearanceSource>(
        const std::shared_ptr<TaskDispatcher> &dispatcher)>;

    using MakeNoticeBoard = std::function<std::unique_ptr<NoticeBoard>(
        const std::shared_ptr<TaskDispatcher> &dispatcher)>;

    /// The window's connections to the outside world.
    struct Collaborators
    {
        /// Without a dispatcher the window creates one with threads of its own.
        ScanModel::Collaborators scan;
        std::unique_ptr<FolderChooser> folderChooser = {};               ///< null: the platform's
        std::unique_ptr<FileSaver> fileSaver = {};                       ///< null: the platform's
        std::shared_ptr<OnboardingCompletionStore> completionStore = {}; ///< null: no walk-through
        MakeAppearance appearance = {};                                  ///< none: the palette's
        MakeNoticeBoard notices = {};                                    ///< none: no notices
        FileOpener::Desktop desktop = {};                                ///< opens and shows files
        TextLocale locale = {};
        std::filesystem::path weeklyLog = {}; ///< empty: none is read
        std::filesystem::path home = {};      ///< decides which files are personal; not read
        /// A second program over the same folder shows this one's window; empty: it opens its own.
        std::filesystem::path dataFolder = {};
        QString title = {}; ///< of the window; empty: the program's name

        /// Those of the running program: the user's own home, environment and disk.
        [[nodiscard]] static Collaborators ofUser(std::shared_ptr<Shutdown> shutdown);
    };

    explicit LoadwickWindow(Collaborators given);
    ~LoadwickWindow();

    LoadwickWindow(const LoadwickWindow &) = delete;
    LoadwickWindow &operator=(const LoadwickWindow &) = delete;

    /// Shows the window for the first time, no larger than its screen, less the panels of the
    /// desktop and a title bar.
    void show();

    /// `wanted` reduced to `room`, but in neither dimension below `least`.
    [[nodiscard]] static QSize firstSize(QSize wanted, QSize least, QSize room);

    [[nodiscard]] ScanModel &model() noexcept { return *m_model; }
    [[nodiscard]] ContentPresenter &content() noexcept { return *m_content; }
    [[nodiscard]] OverviewPresenter &overview() noexcept { return *m_overview; }
    [[nodiscard]] OnboardingPresenter &onboarding() noexcept { return *m_onboarding; }
    [[nodiscard]] QQuickWindow &window() noexcept { return *m_window; }

private:
    void makePresenters(const std::shared_ptr<TaskDispatcher> &dispatcher, const TextLocale &locale,
                        const std::filesystem::path &home);
    void makeWindow();
    void makeCommands(const std::shared_ptr<TaskDispatcher> &dispatcher, const TextLocale &locale);
    void putNoticesOn(std::unique_ptr<NoticeBoard> board);
    void presentOnAppearance(const std::shared_ptr<TaskDispatcher> &dispatcher);

    // Destroyed from the last to the first: every view before its presenter.
    QObject m_interface; ///< receives what background work posts
    std::unique_ptr<ScanModel> m_model;
    std::unique_ptr<ContentPresenter> m_content;
    std::unique_ptr<OverviewPresenter> m_overview;
    std::unique_ptr<TrendsPresenter> m_trends;
    std::unique_ptr<ComparePresenter> m_compare;
    std::unique_ptr<OnboardingPresenter> m_onboarding;
    std::unique_ptr<FileOpener> m_fileOpener;
    std::unique_ptr<FolderDrop> m_folderDrop;
    std::unique_ptr<RecentRepositories> m_recent;
    std::unique_ptr<PageExport> m_overviewExport;
    std::unique_ptr<PageExport> m_trendsExport;
    std::unique_ptr<PageExport> m_compareExport;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<SpareMemory> m_spareMemory;
    std::unique_ptr<FolderChooser> m_chooser;
    std::unique_ptr<FileSaver> m_saver;
    std::unique_ptr<NoticeBoard> m_noticeBoard;
    std::unique_ptr<ScanNotices> m_scanNotices;
};

} // namespace Loadwick
