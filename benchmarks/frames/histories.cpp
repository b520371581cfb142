// Measures Trends and Compare as frames_overview measures the Overview, with sample histories.
// Usage: frames_histories [--check] [ROUNDS [NAME...]] One paragraph for each page and history,
// named like "compare-200x50": 200 scans of 200 repositories with 50 categories each; one for all.
#include <cstdio>
#include <utility>

#include <QGuiApplication>

#include "FrameArguments.h"
#include "PageCosts.h"
#include "demo/window/WindowAppearance.h"
#include "samples/SampleHistories.h"
#include "shell/ApplicationSetup.h"

namespace {

using namespace Loadwick;

Scene scene(AppPage page, std::string subject, std::vector<RecordedScan> history)
{
    return {.page = page, .subject = std::move(subject), .history = std::move(history)};
}

std::vector<Scene> scenes()
{
    return {scene(AppPage::trends, "200x1", SampleHistories::ofSize(200, 1, 9)),
            scene(AppPage::compare, "5x7", SampleHistories::ofSize(31, 5, 7)),
            scene(AppPage::compare, "200x2", SampleHistories::ofSize(200, 200, 2)),
            scene(AppPage::compare, "200x50", SampleHistories::ofSize(200, 200, 50))};
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ApplicationSetup::prepare();
    QGuiApplication application(argc, argv);
    ApplicationSetup::apply(application);
    const FrameArguments arguments(argc, argv);
    Stage stage;
    appearanceOf(stage.window()).setMotion(Appearance::Full);
    bool areLow = true;
    PageCosts all;
    for (const Scene &scene : scenes()) {
        if (!arguments.isWanted(scene.name()))
            continue;
        const PageCosts costs = PageCosts::measured(stage, scene, arguments.rounds());
        std::printf("%s\n", scene.name().c_str());
        costs.print();
        areLow = costs.areLow() && areLow;
        all.add(costs);
    }
    std::puts("all");
    all.print();
    return arguments.isCheck() && !areLow ? 1 : 0;
}
