// Measures the Overview page at 1180 x 780 in the software renderer, off screen: what its first
// frame costs, what each frame costs while the page arrives, while it is scrolled as fast as a
// wheel can, and while its scroll bar is dragged from the top to the end. Processor milliseconds of
// the interface thread; see FrameMeter. Usage: frames_overview [--check] [ROUNDS [NAME...]] One
// paragraph for each sample report, "of-size" being one of 8,000 categories and 10,000 files. With
// --check the program fails when a page takes longer than a reader should wait.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include <QGuiApplication>
#include <QQuickItem>

#include "FrameMeter.h"
#include "demo/window/WindowAppearance.h"
#include "pictures/PageViewport.h"
#include "pictures/Stage.h"
#include "shell/ApplicationSetup.h"
#include "support/SampleScans.h"

namespace {

using namespace Loadwick;
using Milliseconds = FrameMeter::Milliseconds;
using Frames = std::vector<Milliseconds>;

constexpr Milliseconds entrance{1'100}; // longer than the longest spring
constexpr int scrollSteps = 120;
constexpr double wheelStep = 240; // pixels in a frame: 20 pages in a second
// Of an everyday build, which runs the pages uncompiled; a release is meant to need half of it.
constexpr Milliseconds firstLimit{200};
constexpr Milliseconds frameLimit{16.7}; // 60 frames in a second

struct Costs
{
    Frames first;
    Frames arriving;
    Frames scrolling;
    Frames dragging;

    [[nodiscard]] bool areLow() const
    {
        return percentile(first, 0.5) < firstLimit && percentile(arriving, 0.99) < frameLimit &&
               percentile(scrolling, 0.99) < frameLimit;
    }
};

void append(Frames &all, const Frames &frames)
{
    all.insert(all.end(), frames.begin(), frames.end());
}

Frames scroll(QQuickWindow &window, FrameMeter &meter, double greatestStep)
{
    QQuickItem *viewport = pageViewport(window);
    const double way = viewport == nullptr ? 0.0 : hiddenHeight(*viewport);
    const double step = std::min(way / scrollSteps, greatestStep);
    meter.restart();
    for (int count = 1; count <= scrollSteps && way > 0; ++count) {
        viewport->setProperty("contentY", step * count);
        meter.waitForFrame();
    }
    return meter.frames();
}

void measure(Stage &stage, FrameMeter &meter, const Scene &scene, Costs &costs)
{
    stage.show({.page = AppPage::overview, .subject = "nothing"});
    FrameMeter::run(Milliseconds(200));
    meter.restart();
    stage.show(scene);
    FrameMeter::run(entrance);
    costs.first.push_back(meter.frames().front());
    append(costs.arriving, {meter.frames().begin() + 1, meter.frames().end()});
    append(costs.scrolling, scroll(stage.window(), meter, wheelStep));
    append(costs.dragging, scroll(stage.window(), meter, std::numeric_limits<double>::max()));
}

void print(const char *what, const Frames &frames)
{
    std::printf("  %-10s %5zu frames  50th %6.2f  99th %6.2f  worst %6.2f\n", what, frames.size(),
                percentile(frames, 0.5).count(), percentile(frames, 0.99).count(),
                percentile(frames, 1.0).count());
}

/// Gives whether the page is quick enough.
bool measure(Stage &stage, const SampleScan &scan, int rounds)
{
    const Scene scene{.page = AppPage::overview, .subject = scan.name, .report = scan.report()};
    FrameMeter meter(stage.window());
    Costs costs;
    for (int round = 0; round < rounds; ++round)
        measure(stage, meter, scene, costs);
    std::printf("%s: %zu rows, %zu files\n", scan.name.c_str(), scene.report->rows.size(),
                scene.report->files().size());
    print("first", costs.first);
    print("arriving", costs.arriving);
    print("scrolling", costs.scrolling);
    print("dragging", costs.dragging);
    std::fflush(stdout);
    return costs.areLow();
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ApplicationSetup::prepare();
    QGuiApplication application(argc, argv);
    ApplicationSetup::apply(application);
    std::vector<std::string> words(argv + 1, argv + argc);
    const bool isCheck = std::erase(words, "--check") > 0;
    const int rounds = words.empty() ? 10 : std::max(1, std::atoi(words.front().c_str()));
    std::vector<SampleScan> scans = SampleScans::all();
    scans.push_back(SampleScans::ofSize(8'000, 10'000));
    Stage stage;
    appearanceOf(stage.window()).setMotion(Appearance::Full);
    bool areLow = true;
    for (const SampleScan &scan : scans)
        if (words.size() < 2 || std::count(words.begin() + 1, words.end(), scan.name) > 0)
            areLow = measure(stage, scan, rounds) && areLow;
    return isCheck && !areLow ? 1 : 0;
}
