#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "desktop/DesktopNoticeBoard.h"
#include "history/ScanHistoryStore.h"
#include "onboarding/PreferencesCompletionStore.h"
#include "samples/Confinement.h"
#include "shell/LoadwickApp.h"
#include "stage/ConfinedWindow.h"
#include "stage/Subcommand.h"
#include "theme/DesktopAppearanceSource.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

struct WindowOptions
{
    bool usesPlatformDialog = false;
    bool opensBesideOthers = false; ///< over the same data
    bool followsDesktop = false;    ///< its colours, fonts and motion
    double timeoutSeconds = 60.0;
};

WindowOptions windowOptions(const std::vector<std::string> &words)
{
    WindowOptions options;
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (*word == "--platform-dialog")
            options.usesPlatformDialog = true;
        else if (*word == "--beside-others")
            options.opensBesideOthers = true;
        else if (*word == "--follow-desktop")
            options.followsDesktop = true;
        else if (*word == "--timeout" && std::next(word) != words.end())
            options.timeoutSeconds = std::stod(*++word);
    }
    return options;
}

fs::path folderToChoose(const fs::path &home)
{
    std::ifstream file(home / "folder-to-choose", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

ProbeRunner::Settings runnerSettings(const fs::path &home, double timeoutSeconds,
                                     std::shared_ptr<Shutdown> shutdown)
{
    ProbeRunner::Settings settings = Confinement::runnerSettings(home, std::move(shutdown));
    settings.limits.timeoutSeconds = timeoutSeconds;
    settings.limits.killGraceSeconds = 0.2;
    settings.limits.readerGraceSeconds = 0.5;
    settings.transcriptRetries = 2;
    settings.transcriptRetryDelay = 0.05;
    return settings;
}

LoadwickWindow::Collaborators collaborators(const fs::path &home, const WindowOptions &options,
                                            std::shared_ptr<Shutdown> shutdown)
{
    auto made = ConfinedWindow::collaborators(
        home, runnerSettings(home, options.timeoutSeconds, std::move(shutdown)));
    made.completionStore = std::make_shared<PreferencesCompletionStore>(
        PreferencesCompletionStore::defaultFile(currentEnvironment()));
    if (!options.opensBesideOthers)
        made.dataFolder = ScanHistoryStore::defaultDirectory(currentEnvironment());
    made.notices = [](const auto &dispatcher) {
        return std::make_unique<DesktopNoticeBoard>(dispatcher);
    };
    if (options.followsDesktop)
        made.appearance = [](const auto &dispatcher) {
            return DesktopAppearanceSource::ofUser(dispatcher);
        };
    if (!options.usesPlatformDialog)
        made.folderChooser = ConfinedWindow::givenFolder([home] { return folderToChoose(home); });
    return made;
}

} // namespace

int window(const Invocation &invocation)
{
    const char *home = std::getenv("HOME");
    if (home == nullptr || !fs::exists(fs::path(home) / "throw-away"))
        return wrongCall("HOME is not a throw-away home");
    const fs::path folder = home;
    Confinement::pinEnvironment(folder);
    const WindowOptions options = windowOptions(invocation.words);
    LoadwickApp::run(invocation.argc, invocation.argv, [&](std::shared_ptr<Shutdown> shutdown) {
        return collaborators(folder, options, std::move(shutdown));
    });
}

} // namespace Loadwick
