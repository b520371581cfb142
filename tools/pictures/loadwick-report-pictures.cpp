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
#include "pictures/WalkThrough.h"
#include "shell/ApplicationSetup.h"

namespace {

using namespace Loadwick;

using Names = std::vector<std::string>;

bool isWanted(const std::string &picture, const Names &names)
{
    return names.empty() || std::any_of(names.begin(), names.end(), [&](const std::string &name) {
               return picture.starts_with(name);
           });
}

std::vector<Scene> scenesNamed(const Names &names)
{
    std::vector<Scene> scenes = allScenes();
    std::erase_if(scenes, [&names](const Scene &scene) { return !isWanted(scene.name(), names); });
    return scenes;
}

void printNames(std::ostream &stream)
{
    stream << "There are:\n  " << WalkThrough::name << '\n';
    for (const Scene &scene : allScenes())
        stream << "  " << scene.name() << '\n';
}

int help()
{
    std::cout
        << "Usage: loadwick-report-pictures FOLDER [NAME...]\n"
           "Writes pictures of the pages into the folder, all or those whose names begin with "
           "a NAME.\n";
    printNames(std::cout);
    return 0;
}

int failure(const std::string &line)
{
    std::cerr << line << '\n';
    printNames(std::cerr);
    return 2;
}

void takePages(const std::vector<Scene> &scenes, const std::string &folder)
{
    Stage stage;
    const PageCamera camera(stage.window(), folder);
    for (const Scene &scene : scenes) {
        stage.show(scene);
        camera.take(scene.name());
    }
}

void takeWalkThrough(const std::string &folder)
{
    WalkThrough walkThrough;
    walkThrough.take(PageCamera(walkThrough.window(), folder));
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
    if (arguments.front() == "--help")
        return help();
    if (arguments.front().starts_with('-'))
        return failure("There are no options but --help.");
    const Names names(arguments.begin() + 1, arguments.end());
    const std::vector<Scene> scenes = scenesNamed(names);
    const bool walksThrough = isWanted(WalkThrough::name, names);
    if (scenes.empty() && !walksThrough)
        return failure("No picture has such a name.");
    if (!scenes.empty())
        takePages(scenes, arguments.front());
    if (walksThrough)
        takeWalkThrough(arguments.front());
    return 0;
}
