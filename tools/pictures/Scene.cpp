#include "pictures/Scene.h"

#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"

namespace Loadwick {

std::string Scene::name() const
{
    return std::string(page.rawValue()) + "-" + subject;
}

std::vector<Scene> allScenes()
{
    std::vector<Scene> scenes;
    for (const SampleScan &scan : SampleScans::all())
        scenes.push_back(
            {.page = AppPage::overview, .subject = scan.name, .report = scan.report()});
    for (const AppPage page : {AppPage(AppPage::trends), AppPage(AppPage::compare)})
        for (const SampleHistory &history : SampleHistories::all())
            scenes.push_back({.page = page, .subject = history.name, .history = history.scans});
    return scenes;
}

} // namespace Loadwick
