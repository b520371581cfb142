// The program's window over the home that HOME names and the preferences in it, for the end-to-end
// tests: the stand-in for `claude` is the only command it can start, its waits are short, and the
// folder dialog's twin answers with the bytes of the file "folder-to-choose" in that home.
//   --platform-dialog   the real folder dialog instead of its twin
//   --timeout SECONDS   how long a session may take (default 60)
//   --beside-others     a window of its own where another one is open over the same data
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "demo/window/ConfinedWindow.h"
#include "demo/window/GivenFolderChooser.h"
#include "desktop/DesktopNoticeBoard.h"
#include "history/ScanHistoryStore.h"
#include "onboarding/PreferencesCompletionStore.h"
#include "samples/Confinement.h"
#include "shell/LoadwickApp.h"

namespace {

using namespace Loadwick;

struct Options
{
    bool usesPlatformDialog = false;
    bool opensBesideOthers = false; ///< over the same data
    double timeoutSeconds = 60.0;
};

Options parsed(int argc, char **argv)
{
    Options options;
    for (int index = 1; index < argc; ++index) {
        const std::string_view argument = argv[index];
        if (argument == "--platform-dialog")
            options.usesPlatformDialog = true;
        else if (argument == "--beside-others")
            options.opensBesideOthers = true;
        else if (argument == "--timeout" && index + 1 < argc)
            options.timeoutSeconds = std::atof(argv[++index]);
    }
    return options;
}

std::filesystem::path folderToChoose(const std::filesystem::path &home)
{
    std::ifstream file(home / "folder-to-choose", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

ProbeRunner::Settings runnerSettings(const std::filesystem::path &home, const Options &options,
                                     std::shared_ptr<Shutdown> shutdown)
{
    ProbeRunner::Settings settings = Confinement::runnerSettings(home, std::move(shutdown));
    settings.timeoutSeconds = options.timeoutSeconds;
    settings.killGraceSeconds = 0.2;
    settings.readerGraceSeconds = 0.5;
    settings.transcriptRetries = 2;
    settings.transcriptRetryDelay = 0.05;
    return settings;
}

} // namespace

int main(int argc, char **argv)
{
    const char *home = std::getenv("HOME");
    if (home == nullptr || !std::filesystem::exists(std::filesystem::path(home) / "throw-away")) {
        std::cerr << "HOME is no throw-away home\n";
        return 2;
    }
    Confinement::pinEnvironment(home);
    const std::filesystem::path folder = home;
    const Options options = parsed(argc, argv);
    LoadwickApp::run(argc, argv, [&](std::shared_ptr<Shutdown> shutdown) {
        auto made = ConfinedWindow::collaborators(
            folder, runnerSettings(folder, options, std::move(shutdown)));
        made.completionStore = std::make_shared<PreferencesCompletionStore>(
            PreferencesCompletionStore::defaultFile(currentEnvironment()));
        if (!options.opensBesideOthers)
            made.dataFolder = ScanHistoryStore::defaultDirectory(currentEnvironment());
        made.notices = [](const auto &dispatcher) {
            return std::make_unique<DesktopNoticeBoard>(dispatcher);
        };
        if (!options.usesPlatformDialog)
            made.folderChooser =
                std::make_unique<GivenFolderChooser>([folder] { return folderToChoose(folder); });
        return made;
    });
}
