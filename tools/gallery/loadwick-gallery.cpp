// Shows every component in every state, light and dark side by side.
#include "GalleryView.h"

#include "theme/ApplicationStyle.h"

#include <QGuiApplication>

#include <algorithm>

namespace {

// The page is longer than a screen: it scrolls in a window of this height.
constexpr int highestWindow = 900;

} // namespace

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
    for (QQuickView *view : {&light.window(), &dark.window()})
        view->resize(view->width(), std::min(view->height(), highestWindow));
    light.window().show();
    dark.window().show();
    return QGuiApplication::exec();
}
