#include <iostream>
#include <string>
#include <vector>

#include "onboarding/OnboardingPresenter.h"
#include "stage/Camera.h"
#include "stage/Stage.h"
#include "stage/Subcommand.h"
#include "stage/WindowControl.h"

namespace Loadwick {

namespace {

using Words = std::vector<std::string>;

const std::vector<QSize> sizes{QSize(960, 640), QSize(1180, 780), QSize(2560, 1440)};

/// The Overview of every sample scan, Trends and Compare of every sample history.
std::vector<Scene> picturedScenes()
{
    std::vector<Scene> scenes;
    for (const SampleScan &scan : SampleScans::all())
        scenes.push_back(Scene::ofScan(scan));
    for (const AppPage page : {AppPage(AppPage::trends), AppPage(AppPage::compare)})
        for (const SampleHistory &history : SampleHistories::all())
            scenes.push_back(Scene::ofHistory(page, history.name, history.scans));
    return scenes;
}

std::vector<Scene> scenesNamedBy(const Words &words)
{
    std::vector<Scene> scenes = picturedScenes();
    std::erase_if(scenes, [&words](const Scene &scene) { return !scene.isNamedBy(words); });
    return scenes;
}

bool includesFirstLaunch(const Words &words)
{
    const std::string name = FirstLaunch::name;
    for (const std::string &word : words)
        if (name.starts_with(word))
            return true;
    return words.empty();
}

int wrongCallWithNames(const std::string &line)
{
    std::cerr << line << "\nThere are:\n  " << FirstLaunch::name << '\n';
    for (const Scene &scene : picturedScenes())
        std::cerr << "  " << scene.name() << '\n';
    return 2;
}

void takePages(const std::vector<Scene> &scenes, const std::string &folder)
{
    Stage stage;
    const Camera camera(stage.window(), folder, sizes);
    for (const Scene &scene : scenes) {
        stage.show(scene);
        camera.takePage(scene.name());
    }
}

/// A picture of each step: "onboarding-1" to "onboarding-4".
void takeFirstLaunch(const std::string &folder)
{
    FirstLaunch launch;
    const Camera camera(launch.window(), folder, sizes);
    for (int step = 0; step < launch.onboarding().stepCount(); ++step) {
        camera.takePage(std::string(FirstLaunch::name) + "-" + std::to_string(step + 1));
        launch.onboarding().advance();
        WindowControl::settle(); // it fades in within one settling time
    }
}

} // namespace

int pictures(const Invocation &invocation)
{
    if (invocation.words.empty())
        return wrongCallWithNames("Name the folder to write the pictures into.");
    const std::string folder = invocation.words.front();
    if (folder.starts_with('-'))
        return wrongCallWithNames("There are no options.");
    const Words words(invocation.words.begin() + 1, invocation.words.end());
    const std::vector<Scene> scenes = scenesNamedBy(words);
    const bool showsFirstLaunch = includesFirstLaunch(words);
    if (scenes.empty() && !showsFirstLaunch)
        return wrongCallWithNames("No picture has such a name.");
    return runOffScreen(invocation, [&] {
        if (!scenes.empty())
            takePages(scenes, folder);
        if (showsFirstLaunch)
            takeFirstLaunch(folder);
        return 0;
    });
}

} // namespace Loadwick
