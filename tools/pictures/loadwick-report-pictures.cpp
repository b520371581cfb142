// Takes pictures of the program's pages, filled with sample scans and sample histories, off screen:
// light and dark, at three sizes.
// Usage: loadwick-report-pictures FOLDER [NAME...]
// Without a name all pictures are taken; a name stands for all whose names begin with it.
#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include <QGuiApplication>

#include "pictures/PageCamera.h"
#include "pictures/Scene.h"
#include "pictures/Stage.h"
#include "shell/ApplicationSetup.h"

namespace {

using namespace Loadwick;

std::vector<Scene> scenesNamed(const std::vector<std::string> &names)
{
    std::vector<Scene> scenes = allScenes();
    std::erase_if(scenes, [&names](const Scene &scene) {
        return !names.empty() && std::none_of(names.begin(), names.end(), [&](const auto &name) {
            return scene.name().starts_with(name);
        });
    });
    return scenes;
}

int failure(const std::string &line)
{
    std::cerr << line << "\nThere are:\n";
    for (const Scene &scene : allScenes())
        std::cerr << "  " << scene.name() << '\n';
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ApplicationSetup::prepare();
    QGuiApplication application(argc, argv);
    ApplicationSetup::apply(application);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.empty())
        return failure("Name the folder to write the pictures into.");
    const std::vector<Scene> scenes = scenesNamed({arguments.begin() + 1, arguments.end()});
    if (scenes.empty())
        return failure("No picture has such a name.");
    Stage stage;
    const PageCamera camera(stage.window(), arguments.front());
    for (const Scene &scene : scenes) {
        stage.show(scene);
        camera.take(scene.name());
    }
    return 0;
}
