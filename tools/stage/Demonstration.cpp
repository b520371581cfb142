#include <cstdlib>
#include <memory>
#include <utility>
#include <variant>

#include <QUrl>

#include "dialogs/FolderChooser.h"
#include "samples/Confinement.h"
#include "samples/ThrowAwayHome.h"
#include "shell/ContentPresenter.h"
#include "shell/LoadwickApp.h"
#include "stage/Camera.h"
#include "stage/ConfinedWindow.h"
#include "stage/SeparateProcess.h"
#include "stage/Subcommand.h"
#include "stage/WindowControl.h"

namespace Loadwick {

using namespace WindowControl;

namespace {

LoadwickWindow::Collaborators collaborators(const ThrowAwayHome &home,
                                            std::shared_ptr<Shutdown> shutdown)
{
    return ConfinedWindow::collaborators(
        home.path(), Confinement::runnerSettings(home.path(), std::move(shutdown)));
}

bool isSet(const char *variable)
{
    const char *value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

void press(LoadwickWindow &loadwick, const char *button)
{
    waitUntil(std::string("the button ") + button,
              [&] { return pressButton(loadwick.window(), QString::fromUtf8(button)); });
}

template<typename State>
void waitFor(LoadwickWindow &loadwick, const char *what)
{
    waitUntil(what, [&] {
        return std::holds_alternative<State>(loadwick.model().state().get().value());
    });
}

/// One scan that succeeds and one that fails, through the window's own buttons.
void performScans(LoadwickWindow &loadwick, const ThrowAwayHome &home, const Camera &camera)
{
    camera.take("empty");
    press(loadwick, "Choose Repository…");
    waitUntil("the chosen folder", [&] { return loadwick.content().hasRepository(); });
    camera.take("chosen");

    home.standIn().hold();
    press(loadwick, "Scan Again");
    waitFor<ScanState::Scanning>(loadwick, "the scan's start");
    camera.take("scanning");
    home.standIn().release();
    waitFor<ScanState::Result>(loadwick, "the scan's result");
    camera.take("result");

    home.standIn().play({.outcome = "signed-out"});
    press(loadwick, "Scan Again");
    waitFor<ScanState::Failed>(loadwick, "the scan's failure");
    camera.take("failure");
}

int takePictures(const ThrowAwayHome &home, const std::filesystem::path &folder)
{
    LoadwickWindow::Collaborators made = collaborators(home, std::make_shared<Shutdown>());
    made.folderChooser = ConfinedWindow::givenFolder([&home] { return home.repository(); });
    LoadwickWindow loadwick(std::move(made));
    loadwick.window().show();
    const Camera camera(loadwick.window(), folder, {QSize(1180, 780), QSize(960, 640)});
    performScans(loadwick, home, camera);
    return 0;
}

[[noreturn]] void openWindow(const Invocation &invocation, const ThrowAwayHome &home)
{
    LoadwickApp::run(invocation.argc, invocation.argv, [&home](std::shared_ptr<Shutdown> shutdown) {
        LoadwickWindow::Collaborators made = collaborators(home, std::move(shutdown));
        made.title = QStringLiteral("Demonstration of Loadwick");
        const std::filesystem::path projects = home.repository().parent_path();
        made.folderChooser =
            platformFolderChooser(QUrl::fromLocalFile(QString::fromStdString(projects.string())));
        return made;
    });
}

} // namespace

int demo(const Invocation &invocation)
{
    if (invocation.words.size() != 1)
        return wrongCall("Name the folder to write the pictures into.");
    const std::filesystem::path folder = std::filesystem::absolute(invocation.words.front());
    const ThrowAwayHome home;
    return runInSeparateProcess([&]() -> int {
        Confinement::pinEnvironment(home.path());
        if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY"))
            openWindow(invocation, home);
        return runOffScreen(invocation, [&] { return takePictures(home, folder); });
    });
}

} // namespace Loadwick
