// Measures the Overview page at 1180 x 780 in the software renderer, off screen: what its first
// frame costs, what each frame costs while the page arrives, while it is scrolled as fast as a
// wheel can, while its scroll bar is dragged from the top to the end, and while the pointer crosses
// it. Processor milliseconds of the interface thread; see FrameMeter.
// Usage: frames_overview [--check] [ROUNDS [NAME...]] One paragraph for each sample report,
// "of-size" being one of 8,000 categories and 10,000 files, and one for all. With --check the
// program fails when a page takes longer than a reader should wait.
#include <cstdio>

#include <QGuiApplication>

#include "FrameArguments.h"
#include "PageCosts.h"
#include "demo/window/WindowAppearance.h"
#include "samples/SampleScans.h"
#include "shell/ApplicationSetup.h"

namespace {

using namespace Loadwick;

PageCosts measure(Stage &stage, const SampleScan &scan, int rounds)
{
    const Scene scene{.page = AppPage::overview, .subject = scan.name, .report = scan.report()};
    const PageCosts costs = PageCosts::measured(stage, scene, rounds);
    std::printf("%s: %zu rows, %zu files\n", scan.name.c_str(), scene.report->rows.size(),
                scene.report->files().size());
    costs.print();
    return costs;
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
    std::vector<SampleScan> scans = SampleScans::all();
    scans.push_back(SampleScans::ofSize(8'000, 10'000));
    Stage stage;
    appearanceOf(stage.window()).setMotion(Appearance::Full);
    bool areLow = true;
    PageCosts all;
    for (const SampleScan &scan : scans) {
        if (!arguments.isWanted(scan.name))
            continue;
        const PageCosts costs = measure(stage, scan, arguments.rounds());
        areLow = costs.areLow() && areLow;
        all.add(costs);
    }
    std::puts("all");
    all.print();
    return arguments.isCheck() && !areLow ? 1 : 0;
}
