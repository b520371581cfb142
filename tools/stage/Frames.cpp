#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "stage/PageCosts.h"
#include "stage/Subcommand.h"
#include "stage/WindowControl.h"

namespace Loadwick {

namespace {

struct MeasuringOptions
{
    bool isCheck = false;
    QSize size; ///< of the window; the program's own when empty
    int rounds = 10;
    std::vector<std::string> names;
};

/// Takes `--size WIDTHxHEIGHT` out of the words.
QSize takenSize(std::vector<std::string> &words)
{
    QSize size;
    const auto option = std::ranges::find(words, "--size");
    if (option == words.end() || option + 1 == words.end())
        return size;
    if (std::sscanf((option + 1)->c_str(), "%dx%d", &size.rwidth(), &size.rheight()) != 2)
        return {};
    words.erase(option, option + 2);
    return size;
}

MeasuringOptions measuringOptions(std::vector<std::string> words)
{
    MeasuringOptions options;
    options.isCheck = std::erase(words, "--check") > 0;
    options.size = takenSize(words);
    if (words.empty())
        return options;
    options.rounds = std::max(1, std::atoi(words.front().c_str()));
    options.names.assign(words.begin() + 1, words.end());
    return options;
}

/// The Overview of every sample scan and of one with 8,000 categories and 10,000 files; Trends and
/// Compare of histories named "<repositories>x<categories>".
std::vector<Scene> measuredScenes()
{
    std::vector<Scene> scenes;
    for (const SampleScan &scan : SampleScans::all())
        scenes.push_back(Scene::ofScan(scan));
    scenes.push_back(Scene::ofScan(SampleScans::ofSize(8'000, 10'000)));
    const auto add = [&scenes](AppPage page, const char *name, std::vector<RecordedScan> history) {
        scenes.push_back(Scene::ofHistory(page, name, std::move(history)));
    };
    add(AppPage::trends, "200x1", SampleHistories::ofSize(200, 1, 9));
    add(AppPage::compare, "5x7", SampleHistories::ofSize(31, 5, 7));
    add(AppPage::compare, "200x2", SampleHistories::ofSize(200, 200, 2));
    add(AppPage::compare, "200x50", SampleHistories::ofSize(200, 200, 50));
    return scenes;
}

int measure(const MeasuringOptions &options)
{
    Stage stage;
    if (!options.size.isEmpty())
        stage.window().resize(options.size);
    WindowControl::appearanceOf(stage.window()).setMotion(Appearance::Full);
    bool areLow = true;
    PageCosts all;
    for (const Scene &scene : measuredScenes()) {
        if (!scene.isNamedBy(options.names))
            continue;
        const PageCosts costs = PageCosts::measured(stage, scene, options.rounds);
        std::puts(scene.name().c_str());
        costs.print();
        areLow = costs.areLow() && areLow;
        all.add(costs);
    }
    std::puts("all");
    all.print();
    return options.isCheck && !areLow ? 1 : 0;
}

} // namespace

int frames(const Invocation &invocation)
{
    return runOffScreen(invocation, [&] { return measure(measuringOptions(invocation.words)); });
}

} // namespace Loadwick
