#include "demo/window/EventWait.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

#include "text/Fatal.h"

namespace Loadwick {

namespace {

constexpr int limitMilliseconds = 30'000;
constexpr int settlingMilliseconds = 120; // some frames: layouts take up to three to come to rest
constexpr int stepMilliseconds = 10;

void runEvents()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents,
                                    stepMilliseconds);
    // Outside a running loop these would stay, and with them every page that was left.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

void waitUntil(const std::string &what, const std::function<bool()> &isReached)
{
    const QDeadlineTimer limit(limitMilliseconds);
    while (!isReached()) {
        if (limit.hasExpired())
            fatalError("waited in vain for " + what);
        runEvents();
    }
}

void settle()
{
    const QDeadlineTimer end(settlingMilliseconds);
    while (!end.hasExpired())
        runEvents();
}

} // namespace Loadwick
