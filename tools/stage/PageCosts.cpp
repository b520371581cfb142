#include "stage/PageCosts.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>

#include "stage/WindowControl.h"

namespace Loadwick {

using namespace WindowControl;

namespace {

using Milliseconds = FrameMeter::Milliseconds;
using Frames = std::vector<Milliseconds>;

constexpr std::array partNames{"first", "arriving", "scrolling", "dragging", "hovering"};
constexpr Milliseconds entrance{1'100}; // longer than the longest spring
constexpr Milliseconds settling{200};
constexpr int scrollSteps = 120;
constexpr double wheelStep = 240; // pixels in a frame: 20 pages in a second
constexpr int hoverScreens = 3;   // the charts of every page are within them
constexpr int hoverSweeps = 3;    // over a screen, from side to side
constexpr int hoverSteps = 20;    // in a sweep
// For an everyday build, which interprets the pages; a release should need half of it.
constexpr Milliseconds firstLimit{200};
constexpr Milliseconds frameLimit{16.7}; // 60 frames in a second

Frames scroll(QQuickWindow &window, FrameMeter &meter, double greatestStep)
{
    QQuickItem *viewport = pageViewport(window);
    const double distance = viewport == nullptr ? 0.0 : hiddenHeight(*viewport);
    const double step = std::min(distance / scrollSteps, greatestStep);
    meter.restart();
    for (int count = 1; count <= scrollSteps && distance > 0; ++count) {
        viewport->setProperty("contentY", step * count);
        meter.waitForFrame();
    }
    return meter.frames();
}

void movePointer(QQuickWindow &window, const QPointF &position)
{
    QMouseEvent event(QEvent::MouseMove, position, window.mapToGlobal(position), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

// A frame for each step, even where the pointer changes nothing.
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
        frames.insert(frames.end(), meter.frames().begin(), meter.frames().end());
    }
    movePointer(window, {-1, -1});
    return frames;
}

} // namespace

PageCosts PageCosts::measured(Stage &stage, const Scene &scene, int rounds)
{
    FrameMeter meter(stage.window());
    PageCosts costs;
    for (int round = 0; round < rounds; ++round)
        costs.measure(stage, meter, scene);
    return costs;
}

void PageCosts::measure(Stage &stage, FrameMeter &meter, const Scene &scene)
{
    stage.show({.page = AppPage::overview, .subject = "nothing"});
    FrameMeter::run(settling);
    meter.restart();
    stage.show(scene);
    FrameMeter::run(entrance);
    append(first, {meter.frames().front()});
    append(arriving, {meter.frames().begin() + 1, meter.frames().end()});
    append(scrolling, scroll(stage.window(), meter, wheelStep));
    append(dragging, scroll(stage.window(), meter, std::numeric_limits<double>::max()));
    append(hovering, hover(stage.window(), meter));
}

void PageCosts::append(Part part, const Frames &frames)
{
    m_frames[part].insert(m_frames[part].end(), frames.begin(), frames.end());
}

void PageCosts::add(const PageCosts &other)
{
    for (const Part part : {first, arriving, scrolling, dragging, hovering})
        append(part, other.m_frames[part]);
}

bool PageCosts::isBelow(Milliseconds limit, Part part, double share) const
{
    return percentile(m_frames[part], share) < limit;
}

bool PageCosts::areLow() const
{
    return isBelow(firstLimit, first, 0.5) && isBelow(frameLimit, arriving, 0.99) &&
           isBelow(frameLimit, scrolling, 0.99) && isBelow(frameLimit, hovering, 0.99);
}

void PageCosts::print() const
{
    for (const Part part : {first, arriving, scrolling, dragging, hovering}) {
        const Frames &frames = m_frames[part];
        std::printf("  %-10s %5zu frames  50th %6.2f  99th %6.2f  worst %6.2f\n", partNames[part],
                    frames.size(), percentile(frames, 0.5).count(),
                    percentile(frames, 0.99).count(), percentile(frames, 1.0).count());
    }
    std::fflush(stdout);
}

} // namespace Loadwick
