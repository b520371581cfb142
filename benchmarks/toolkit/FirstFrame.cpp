#include "FirstFrame.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

#include <QCoreApplication>
#include <QQuickWindow>
#include <QTimer>

namespace Loadwick {

namespace {

using namespace std::chrono;

constexpr auto settling = 2s;

double millisecondsSinceStart()
{
    const char *const began = std::getenv("STARTUP_BEGAN");
    const nanoseconds start(began != nullptr ? std::stoll(began) : 0);
    return duration<double, std::milli>(system_clock::now().time_since_epoch() - start).count();
}

long residentKibibytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmRSS:", 0) == 0)
            return std::stol(line.substr(sizeof "VmRSS:"));
    return 0;
}

} // namespace

void reportFirstFrame(QQuickWindow &window)
{
    const auto isDone = std::make_shared<bool>(false);
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [isDone] {
        if (std::exchange(*isDone, true))
            return;
        const double firstFrame = millisecondsSinceStart();
        QTimer::singleShot(settling, [firstFrame] {
            std::printf("%.1f %ld\n", firstFrame, residentKibibytes());
            QCoreApplication::quit();
        });
    });
}

} // namespace Loadwick
