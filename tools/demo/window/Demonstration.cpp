#include "demo/window/Demonstration.h"

#include <memory>
#include <string>
#include <utility>
#include <variant>

#include <QGuiApplication>
#include <QUrl>

#include "demo/window/ButtonPress.h"
#include "demo/window/ConfinedWindow.h"
#include "demo/window/EventWait.h"
#include "demo/window/GivenFolderChooser.h"
#include "demo/window/PictureSeries.h"
#include "dialogs/DialogFolderChooser.h"
#include "samples/Confinement.h"
#include "shell/ApplicationSetup.h"
#include "shell/LoadwickApp.h"

namespace Loadwick::Demonstration {

namespace {

LoadwickWindow::Collaborators collaborators(const ThrowAwayHome &home,
                                            std::shared_ptr<Shutdown> shutdown)
{
    return ConfinedWindow::collaborators(
        home.path(), Confinement::runnerSettings(home.path(), std::move(shutdown)));
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

void performScans(LoadwickWindow &loadwick, const ThrowAwayHome &home,
                  const PictureSeries &pictures)
{
    pictures.take("empty");
    press(loadwick, "Choose Repository…");
    waitUntil("the chosen folder", [&] { return loadwick.content().hasRepository(); });
    pictures.take("chosen");

    home.standIn().hold();
    press(loadwick, "Scan Again");
    waitFor<ScanState::Scanning>(loadwick, "the scan's start");
    pictures.take("scanning");
    home.standIn().release();
    waitFor<ScanState::Result>(loadwick, "the scan's result");
    pictures.take("result");

    home.standIn().play({.outcome = "signed-out"});
    press(loadwick, "Scan Again");
    waitFor<ScanState::Failed>(loadwick, "the scan's failure");
    pictures.take("failure");
}

} // namespace

void show(int argc, char **argv, const ThrowAwayHome &home)
{
    LoadwickApp::run(argc, argv, [&home](std::shared_ptr<Shutdown> shutdown) {
        LoadwickWindow::Collaborators made = collaborators(home, std::move(shutdown));
        made.title = QStringLiteral("Demonstration of Loadwick");
        const std::filesystem::path projects = home.repository().parent_path();
        made.folderChooser = std::make_unique<DialogFolderChooser>(
            QUrl::fromLocalFile(QString::fromStdString(projects.string())));
        return made;
    });
}

int takePictures(int argc, char **argv, const ThrowAwayHome &home,
                 const std::filesystem::path &folder)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ApplicationSetup::prepare();
    QGuiApplication application(argc, argv);
    ApplicationSetup::apply(application);
    LoadwickWindow::Collaborators made = collaborators(home, std::make_shared<Shutdown>());
    made.folderChooser =
        std::make_unique<GivenFolderChooser>([&home] { return home.repository(); });
    LoadwickWindow loadwick(std::move(made));
    loadwick.window().show();
    performScans(loadwick, home, PictureSeries(loadwick.window(), folder));
    return 0;
}

} // namespace Loadwick::Demonstration
