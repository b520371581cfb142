#include "FirstFrame.h"

#include <memory>
#include <utility>

#include <QApplication>

#include "shell/ApplicationSetup.h"
#include "shell/LoadwickWindow.h"
#include "theme/ApplicationStyle.h"

int main(int argc, char **argv)
{
    Loadwick::ApplicationSetup::prepare();
    QApplication application(argc, argv);
    const auto fonts = Loadwick::ApplicationStyle::readFonts();
    Loadwick::ApplicationSetup::apply();
    auto collaborators =
        Loadwick::LoadwickWindow::Collaborators::ofUser(std::make_shared<Loadwick::Shutdown>());
    collaborators.completionStore = nullptr; // no first-launch sheet over the window
    Loadwick::LoadwickWindow loadwick(std::move(collaborators));
    Loadwick::reportFirstFrame(loadwick.window());
    loadwick.window().show();
    return QApplication::exec();
}
