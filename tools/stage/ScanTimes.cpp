#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>
#include <variant>

#include <QEventLoop>
#include <QKeyEvent>

#include "samples/Confinement.h"
#include "samples/ThrowAwayHome.h"
#include "shell/ContentPresenter.h"
#include "stage/ConfinedWindow.h"
#include "stage/FrameMeter.h"
#include "stage/SeparateProcess.h"
#include "stage/Subcommand.h"
#include "stage/WindowControl.h"

namespace Loadwick {

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

bool hasResult(LoadwickWindow &loadwick)
{
    return std::holds_alternative<ScanState::Result>(loadwick.model().state().get().value());
}

void pressScanKey(QQuickWindow &window)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(&window, new QKeyEvent(type, Qt::Key_R, Qt::ControlModifier));
}

struct Round
{
    double total = 0;
    double frame = 0;
};

/// One scan through the window, from the key to the frame that shows its result.
Round scanInWindow(LoadwickWindow &loadwick)
{
    Round round;
    QEventLoop loop;
    Clock::time_point resultCame;
    bool isScanning = false;
    bool isDone = false;
    const auto watch =
        QObject::connect(&loadwick.content(), &ContentPresenter::stateChanged, &loop, [&] {
            isScanning = isScanning || !hasResult(loadwick);
            isDone = isScanning && hasResult(loadwick);
            resultCame = Clock::now();
        });
    const Clock::time_point start = Clock::now();
    QObject::connect(&loadwick.window(), &QQuickWindow::frameSwapped, &loop, [&] {
        if (!isDone)
            return;
        round = {millisecondsSince(start), millisecondsSince(resultCame)};
        loop.quit();
    });
    pressScanKey(loadwick.window());
    loop.exec();
    QObject::disconnect(watch);
    return round;
}

double sessionAlone(const ThrowAwayHome &home)
{
    const Clock::time_point start = Clock::now();
    (void)ProbeRunner::execute({.cli = home.standIn().executable(),
                                .repository = home.repository(),
                                .environment = currentEnvironment(),
                                .shutdown = nullptr});
    return millisecondsSince(start);
}

int measure(const ThrowAwayHome &home, int rounds)
{
    auto made = ConfinedWindow::collaborators(
        home.path(), Confinement::runnerSettings(home.path(), std::make_shared<Shutdown>()));
    made.folderChooser = ConfinedWindow::givenFolder([&home] { return home.repository(); });
    LoadwickWindow loadwick(std::move(made));
    loadwick.window().show();
    loadwick.window().requestActivate();
    loadwick.content().chooseFolder();
    WindowControl::waitUntil("the chosen folder", [&] { return loadwick.content().canScan(); });
    FrameMeter::run(std::chrono::seconds(1));
    for (int count = 0; count <= rounds; ++count) {
        const double alone = sessionAlone(home);
        const Round round = scanInWindow(loadwick);
        FrameMeter::run(std::chrono::seconds(2)); // longer than the longest spring
        if (count > 0)                            // the first one warms up
            std::printf("%.1f %.1f %.1f\n", round.total, alone, round.frame);
    }
    return 0;
}

} // namespace

int scans(const Invocation &invocation)
{
    const int rounds = invocation.words.empty() ? 7 : std::atoi(invocation.words.front().c_str());
    const ThrowAwayHome home;
    home.standIn().play({});
    return runInSeparateProcess([&] {
        Confinement::pinEnvironment(home.path());
        return runOffScreen(invocation, [&] { return measure(home, rounds); });
    });
}

} // namespace Loadwick
