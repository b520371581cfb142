#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>

#include "history/ScanHistoryStore.h"
#include "samples/Confinement.h"
#include "samples/GeneratedFiles.h"
#include "samples/ThrowAwayHome.h"
#include "shell/ContentPresenter.h"
#include "stage/ConfinedWindow.h"
#include "stage/FrameMeter.h"
#include "stage/SeparateProcess.h"
#include "stage/Subcommand.h"
#include "stage/WindowControl.h"

namespace Loadwick {

namespace {

using namespace std::chrono;
using Milliseconds = FrameMeter::Milliseconds;

constexpr milliseconds actionRest(2'500); // longer than the longest spring and what follows a page

/// How long the interface thread went without looking at its events, at most.
class StallMeter
{
public:
    StallMeter()
    {
        m_pulse.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_pulse, &QTimer::timeout, [this] {
            const auto now = steady_clock::now();
            m_longest = std::max(m_longest, Milliseconds(now - std::exchange(m_last, now)));
        });
        m_pulse.start(milliseconds(1));
    }

    [[nodiscard]] Milliseconds longest() const noexcept { return m_longest; }

private:
    QTimer m_pulse;
    steady_clock::time_point m_last = steady_clock::now();
    Milliseconds m_longest{};
};

std::string residentKibibytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmRSS:" && status >> word)
            return word;
    return "0";
}

/// Runs events until nothing is left to do for the history and the pages.
void rest(LoadwickWindow &loadwick)
{
    FrameMeter::run(actionRest);
    WindowControl::waitUntil("the history", [&] { return loadwick.model().isHistoryComplete(); });
    FrameMeter::run(actionRest);
}

/// One line: the action, milliseconds to its first frame, the longest stall that it caused, and
/// resident KiB when all is at rest.
void measureAction(LoadwickWindow &loadwick, const char *name, const std::function<void()> &act)
{
    StallMeter stalls;
    FrameMeter::run(milliseconds(20));
    Milliseconds firstFrame{};
    const auto start = steady_clock::now();
    const auto watch =
        QObject::connect(&loadwick.window(), &QQuickWindow::frameSwapped, [&firstFrame, start] {
            if (firstFrame == Milliseconds{})
                firstFrame = steady_clock::now() - start;
        });
    act();
    rest(loadwick);
    QObject::disconnect(watch);
    std::printf("%-13s %7.1f %7.1f %s\n", name, firstFrame.count(), stalls.longest().count(),
                residentKibibytes().c_str());
    std::fflush(stdout);
}

void press(QQuickWindow &window, Qt::Key key)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(&window, new QKeyEvent(type, key, Qt::ControlModifier));
}

int measureActions(const ThrowAwayHome &home)
{
    auto made = ConfinedWindow::collaborators(
        home.path(), Confinement::runnerSettings(home.path(), std::make_shared<Shutdown>()));
    made.folderChooser = ConfinedWindow::givenFolder([&home] { return home.repository(); });
    std::unique_ptr<LoadwickWindow> loadwick;
    const auto pressed = [&loadwick](Qt::Key key) {
        return [&loadwick, key] { press(loadwick->window(), key); };
    };
    loadwick = std::make_unique<LoadwickWindow>(std::move(made));
    measureAction(*loadwick, "start", [&] {
        loadwick->window().show();
        loadwick->window().requestActivate();
    });
    loadwick->content().chooseFolder();
    WindowControl::waitUntil("the chosen folder", [&] { return loadwick->content().canScan(); });
    rest(*loadwick);
    measureAction(*loadwick, "scan", pressed(Qt::Key_R));
    measureAction(*loadwick, "trends", pressed(Qt::Key_2));
    measureAction(*loadwick, "compare", pressed(Qt::Key_3));
    measureAction(*loadwick, "overview", pressed(Qt::Key_1));
    measureAction(*loadwick, "compare-again", pressed(Qt::Key_3));
    measureAction(*loadwick, "scan-again", pressed(Qt::Key_R));
    measureAction(*loadwick, "clear", [&] { loadwick->model().clearHistory(); });
    return 0;
}

} // namespace

int actions(const Invocation &invocation)
{
    const ThrowAwayHome home;
    home.standIn().play({});
    const int categories =
        invocation.words.empty() ? 30 : std::atoi(invocation.words.front().c_str());
    std::filesystem::remove(home.historyFolder() / ScanHistoryStore::fileName);
    GeneratedFiles::comparedHistory(home.historyFolder(), categories);
    return runInSeparateProcess([&] {
        Confinement::pinEnvironment(home.path());
        return runOffScreen(invocation, [&] { return measureActions(home); });
    });
}

} // namespace Loadwick
