#include "FirstFrame.h"

#include <memory>

#include <QGuiApplication>

#include "shell/ApplicationSetup.h"
#include "shell/LoadwickWindow.h"

int main(int argc, char **argv)
{
    Loadwick::ApplicationSetup::prepare();
    QGuiApplication application(argc, argv);
    Loadwick::ApplicationSetup::apply(application);
    Loadwick::LoadwickWindow loadwick(
        Loadwick::LoadwickWindow::Collaborators::ofUser(std::make_shared<Loadwick::Shutdown>()));
    Loadwick::reportFirstFrame(loadwick.window());
    loadwick.window().show();
    return QGuiApplication::exec();
}
