#include "faults/driver/Conditions.h"

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include <sys/time.h>
#include <unistd.h>

#include "faults/driver/Matrix.h"
#include "faults/driver/Shim.h"
#include "faults/driver/Trial.h"

namespace Faults {

namespace {

constexpr long hour = 3600; // seconds

std::atomic<bool> isClockChanging = false;
std::thread clockMover;

void setClockForward()
{
    Shim::shiftClock(hour);
}

void setClockBack()
{
    Shim::shiftClock(-hour);
}

void startChangingClock()
{
    isClockChanging = true;
    clockMover = std::thread([] {
        for (long shift = hour; isClockChanging; shift = -shift) {
            Shim::shiftClock(shift);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    });
}

void stopChangingClock()
{
    isClockChanging = false;
    clockMover.join();
}

// The handler does nothing, and without SA_RESTART interrupted calls fail with EINTR.
void setAlarmEvery(long microseconds)
{
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    sigaction(SIGALRM, &action, nullptr);
    const timeval interval{.tv_sec = 0, .tv_usec = microseconds};
    const itimerval timer{.it_interval = interval, .it_value = interval};
    setitimer(ITIMER_REAL, &timer, nullptr);
}

void closeStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        close(stream);
}

void blockAllSignals()
{
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, nullptr);
}

// Except SIGCHLD, which the program itself resets if its parent ignored it.
void ignoreAllSignals()
{
    for (int number = 1; number < NSIG; ++number)
        if (number != SIGCHLD)
            std::signal(number, SIG_IGN);
}

/// As large as the system passes to a child, with duplicate, malformed and misleading entries.
void fillEnvironment()
{
    static std::vector<std::string> entries;
    for (char **entry = environ; *entry != nullptr; ++entry)
        entries.emplace_back(*entry);
    for (int number = 0; number < 20; ++number)
        entries.push_back("FILLING_" + std::to_string(number) + "=" + std::string(99'000, 'x'));
    for (const char *odd : {"TWICE=1", "TWICE=2", "HOME=/nowhere", "=nameless", "=", "no-equals",
                            "BYTES=\xff\xfe\x80", "\xff\xfe=name"})
        entries.emplace_back(odd);
    static std::vector<char *> pointers;
    for (std::string &entry : entries)
        pointers.push_back(entry.data());
    pointers.push_back(nullptr);
    environ = pointers.data();
}

void stopAndContinue(int processID)
{
    for (int round = 0; round < 10; ++round) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        kill(processID, SIGSTOP);
        std::this_thread::sleep_for(std::chrono::milliseconds(3));
        kill(processID, SIGCONT);
    }
}

constexpr std::array all{
    Condition{"plain", [] {}},
    Condition{"clock-an-hour-forward", setClockForward},
    Condition{"clock-an-hour-back", setClockBack},
    Condition{"clock-set-all-the-time", startChangingClock, stopChangingClock},
    Condition{"stopped-and-continued", [] {}, nullptr, stopAndContinue},
    Condition{"alarm-every-millisecond", [] { setAlarmEvery(1000); }, [] { setAlarmEvery(0); }},
    Condition{"standard-streams-closed", closeStandardStreams},
    Condition{"signals-blocked", blockAllSignals},
    Condition{"signals-ignored", ignoreAllSignals},
    Condition{"two-megabytes-of-environment", fillEnvironment},
};

long problemsUnder(const Condition &condition, const std::filesystem::path &workFolder)
{
    long problems = 0;
    for (const OperationKind &kind : allOperations()) {
        const Trial trial{.kind = kind,
                          .before = condition.begin,
                          .after = condition.end,
                          .meanwhile = condition.disturb};
        const auto problem = trial.run(workFolder).problem;
        if (!problem)
            continue;
        ++problems;
        std::printf("PROBLEM %s, %s: %s\n", std::string(condition.name).c_str(),
                    std::string(kind.name).c_str(), problem->c_str());
    }
    return problems;
}

} // namespace

std::span<const Condition> conditions()
{
    return all;
}

long runUnderConditions(const std::filesystem::path &workFolder)
{
    long problems = 0;
    for (const Condition &condition : conditions()) {
        const auto start = std::chrono::steady_clock::now();
        problems += problemsUnder(condition, workFolder);
        const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;
        // Flushed, so that an interrupted run shows how far it came.
        std::printf("%s: %.1f s\n", std::string(condition.name).c_str(), duration.count());
        std::fflush(stdout);
    }
    std::printf("%zu operations under %zu conditions, %ld problems\n", allOperations().size(),
                conditions().size(), problems);
    return problems;
}

} // namespace Faults
