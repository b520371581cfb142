#include "stage/FrameMeter.h"

#include <algorithm>
#include <cmath>
#include <ctime>

#include <QEventLoop>
#include <QTimer>

namespace Loadwick {

namespace {

FrameMeter::Milliseconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

FrameMeter::FrameMeter(QQuickWindow &window)
    : m_window(window),
      m_connection(
          QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { endFrame(); }))
{
    restart();
}

FrameMeter::~FrameMeter()
{
    QObject::disconnect(m_connection);
}

void FrameMeter::restart()
{
    m_frames.clear();
    m_lastEnd = processorTime();
}

void FrameMeter::endFrame()
{
    const Milliseconds now = processorTime();
    m_frames.push_back(now - m_lastEnd);
    m_lastEnd = now;
}

// Nested loops, not processEvents(): outside a loop, deferred deletions never happen.
void FrameMeter::waitForFrame() const
{
    QEventLoop loop;
    QObject::connect(&m_window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    loop.exec();
}

void FrameMeter::run(Milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(std::chrono::ceil<std::chrono::milliseconds>(time), &loop,
                       &QEventLoop::quit);
    loop.exec();
}

FrameMeter::Milliseconds percentile(std::vector<FrameMeter::Milliseconds> values, double share)
{
    if (values.empty())
        return {};
    std::sort(values.begin(), values.end());
    const double rank = std::ceil(share * static_cast<double>(values.size()));
    return values[static_cast<std::size_t>(std::max(rank, 1.0)) - 1];
}

} // namespace Loadwick
