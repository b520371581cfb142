#include <array>
#include <string>

#include <QGuiApplication>

#include "stage/Camera.h"
#include "stage/Stage.h"
#include "stage/Subcommand.h"
#include "stage/WindowControl.h"
#include "theme/AppearanceSource.h"

namespace Loadwick {

using namespace WindowControl;

namespace {

struct Look
{
    const char *name;
    Appearance::Scheme scheme;
    Appearance::Contrast contrast;
    double textScale = 1;
};

constexpr QSize size(960, 640);
constexpr std::array<Look, 5> allLooks{
    {{"1-light", Appearance::Light, Appearance::Standard},
     {"2-light-contrast", Appearance::Light, Appearance::More},
     {"3-dark", Appearance::Dark, Appearance::Standard},
     {"4-dark-contrast", Appearance::Dark, Appearance::More},
     {"5-large", Appearance::Light, Appearance::Standard, DesktopPreferences::largestTextScale}}};

std::vector<Scene> scenes()
{
    const auto history = SampleHistories::ofSize(31, 5, 8);
    return {Scene::ofScan(SampleScans::heavy()),
            Scene::ofHistory(AppPage::trends, "history", history),
            Scene::ofHistory(AppPage::compare, "history", history)};
}

/// "<page>-<direction>-<scale>-<look>" of the window in its current state.
void takeLooks(QQuickWindow &window, const PictureFolder &folder, const std::string &page)
{
    const bool isMirrored = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    const int percent = static_cast<int>(window.devicePixelRatio() * 100);
    const std::string start =
        page + (isMirrored ? "-rtl-" : "-ltr-") + std::to_string(percent) + "-";
    Appearance &appearance = appearanceOf(window);
    appearance.setMotion(Appearance::Reduced);
    window.resize(size);
    for (const Look &look : allLooks) {
        appearance.setScheme(look.scheme);
        appearance.setContrast(look.contrast);
        appearance.setTextScale(look.textScale);
        settle();
        folder.save(window.grabWindow(), start + look.name);
    }
}

void takeAll(const PictureFolder &folder)
{
    Stage stage;
    appearanceOf(stage.window()).setMotion(Appearance::Reduced);
    for (int pause = 0; pause < 4; ++pause)
        settle(); // the first page was already arriving
    for (const Scene &scene : scenes()) {
        stage.show(scene);
        takeLooks(stage.window(), folder, std::string(scene.page.rawValue()));
    }
    FirstLaunch launch;
    takeLooks(launch.window(), folder, FirstLaunch::name);
}

} // namespace

int looks(const Invocation &invocation)
{
    if (invocation.words.size() != 1)
        return wrongCall("Name the folder to write the pictures into.");
    return runOffScreen(invocation, [&invocation] {
        const PictureFolder folder(invocation.words.front());
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QGuiApplication::setLayoutDirection(direction);
            takeAll(folder);
        }
        return 0;
    });
}

} // namespace Loadwick
