#include "PageCosts.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>

#include "pictures/PageViewport.h"

namespace Loadwick {

namespace {

using Milliseconds = FrameMeter::Milliseconds;
using Frames = PageCosts::Frames;

constexpr Milliseconds entrance{1'100}; // longer than the longest spring
constexpr Milliseconds settling{200};
constexpr int scrollSteps = 120;
constexpr double wheelStep = 240; // pixels in a frame: 20 pages in a second
constexpr int hoverScreens = 3;   // the charts of every page are within them
constexpr int hoverSweeps = 3;    // over a screen, from side to side
constexpr int hoverSteps = 20;    // in a sweep
// Of an everyday build, which runs the pages uncompiled; a release is meant to need half of it.
constexpr Milliseconds firstLimit{200};
constexpr Milliseconds frameLimit{16.7}; // 60 frames in a second

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

void movePointer(QQuickWindow &window, const QPointF &place)
{
    QMouseEvent event(QEvent::MouseMove, place, window.mapToGlobal(place), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

// A frame for each step, also where the pointer changes nothing.
void sweep(QQuickWindow &window, const FrameMeter &meter, const QRectF &screen)
{
    for (int step = 0; step < hoverSweeps * hoverSteps; ++step) {
        const double down = (step + 0.5) / (hoverSweeps * hoverSteps);
        const double across = (step % hoverSteps + 0.5) / hoverSteps;
        movePointer(window, {screen.left() + across * screen.width(),
                             screen.top() + down * screen.height()});
        window.update();
        meter.waitForFrame();
    }
}

Frames hover(QQuickWindow &window, FrameMeter &meter)
{
    QQuickItem *viewport = pageViewport(window);
    if (viewport == nullptr)
        return {};
    const QRectF screen = viewport->mapRectToScene(viewport->boundingRect());
    Frames frames;
    for (int count = 0; count < hoverScreens; ++count) {
        const double top = std::min(hiddenHeight(*viewport), count * viewport->height());
        viewport->setProperty("contentY", top);
        FrameMeter::run(settling);
        meter.restart();
        sweep(window, meter, screen);
        append(frames, meter.frames());
    }
    movePointer(window, {-1, -1});
    return frames;
}

void measure(Stage &stage, FrameMeter &meter, const Scene &scene, PageCosts &costs)
{
    stage.show({.page = AppPage::overview, .subject = "nothing"});
    FrameMeter::run(settling);
    meter.restart();
    stage.show(scene);
    FrameMeter::run(entrance);
    costs.first.push_back(meter.frames().front());
    append(costs.arriving, {meter.frames().begin() + 1, meter.frames().end()});
    append(costs.scrolling, scroll(stage.window(), meter, wheelStep));
    append(costs.dragging, scroll(stage.window(), meter, std::numeric_limits<double>::max()));
    append(costs.hovering, hover(stage.window(), meter));
}

void printLine(const char *what, const Frames &frames)
{
    std::printf("  %-10s %5zu frames  50th %6.2f  99th %6.2f  worst %6.2f\n", what, frames.size(),
                percentile(frames, 0.5).count(), percentile(frames, 0.99).count(),
                percentile(frames, 1.0).count());
}

} // namespace

PageCosts PageCosts::measured(Stage &stage, const Scene &scene, int rounds)
{
    FrameMeter meter(stage.window());
    PageCosts costs;
    for (int round = 0; round < rounds; ++round)
        measure(stage, meter, scene, costs);
    return costs;
}

void PageCosts::add(const PageCosts &other)
{
    append(first, other.first);
    append(arriving, other.arriving);
    append(scrolling, other.scrolling);
    append(dragging, other.dragging);
    append(hovering, other.hovering);
}

bool PageCosts::areLow() const
{
    return percentile(first, 0.5) < firstLimit && percentile(arriving, 0.99) < frameLimit &&
           percentile(scrolling, 0.99) < frameLimit && percentile(hovering, 0.99) < frameLimit;
}

void PageCosts::print() const
{
    printLine("first", first);
    printLine("arriving", arriving);
    printLine("scrolling", scrolling);
    printLine("dragging", dragging);
    printLine("hovering", hovering);
    std::fflush(stdout);
}

} // namespace Loadwick
