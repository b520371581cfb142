#include "shell/LoadwickApp.h"

#include <cstdio>
#include <optional>
#include <utility>

#include <QApplication>

#include "desktop/SingleInstance.h"
#include "desktop/WindowActivation.h"
#include "shell/ApplicationSetup.h"
#include "shell/DisplayFailure.h"
#include "shell/FirstSize.h"
#include "shell/ProgramEnd.h"
#include "shell/ProgramSignals.h"

namespace Loadwick::LoadwickApp {
namespace {

int runWindow(int argc, char **argv, const MakeCollaborators &make,
              const std::shared_ptr<Shutdown> &shutdown)
{
    std::optional<DisplayFailure> displayFailure(std::in_place);
    QApplication application(argc, argv);
    displayFailure.reset();
    ApplicationSetup::apply(application);
    LoadwickWindow::Collaborators collaborators = make(shutdown);
    const SingleInstance instance(collaborators.dataFolder);
    if (instance.isAnswered()) {
        std::puts("Loadwick is open already: its window was asked to come to the front.");
        std::fflush(stdout); // the program's end does without
        return 0;
    }
    LoadwickWindow loadwick(std::move(collaborators));
    QObject::connect(&instance, &SingleInstance::windowWanted, &loadwick.window(),
                     [&window = loadwick.window()](const QByteArray &token) {
                         WindowActivation::bringToFront(window, token);
                     });
    FirstSize::putOn(loadwick.window());
    loadwick.window().show();
    loadwick.window().requestActivate();
    const int status = QApplication::exec();
    // What follows tidies up (a copied summary goes to the desktop's clipboard) and may hang.
    ProgramEnd::begin(shutdown, status);
    return status;
}

} // namespace

void run(int argc, char **argv, const MakeCollaborators &make)
{
    const auto shutdown = std::make_shared<Shutdown>();
    ProgramSignals::install(shutdown);
    ApplicationSetup::prepare();
    const int status = runWindow(argc, argv, make, shutdown);
    ProgramEnd::leave(*shutdown, status);
}

} // namespace Loadwick::LoadwickApp
