// Shows every component in every state, light and dark side by side.
#include "GalleryView.h"

#include "theme/ApplicationStyle.h"

#include <QGuiApplication>

int main(int argc, char *argv[])
{
    using namespace Loadwick;

    ApplicationStyle::prepare();
    QGuiApplication application(argc, argv);
    ApplicationStyle::applyFont(application);
    GalleryView light(Appearance::Light);
    GalleryView dark(Appearance::Dark);
    light.window().setPosition(20, 40);
    dark.window().setPosition(40 + light.window().width(), 40);
    light.window().show();
    dark.window().show();
    return QGuiApplication::exec();
}
