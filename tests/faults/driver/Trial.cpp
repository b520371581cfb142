#include "faults/driver/Trial.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <exception>
#include <new>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "faults/driver/Progress.h"
#include "faults/driver/Shim.h"
#include "posix/FileDescriptor.h"
#include "probe/ProbeError.h"
#include "process/ChildProcess.h"
#include "process/Deadline.h"
#include "support/ProcessCensus.h"
#include "text/Fatal.h"

namespace Faults {

namespace {

namespace fs = std::filesystem;

Plan planOf(const Trial &trial, const fs::path &home)
{
    Plan plan;
    if (trial.fault) {
        plan.call = trial.fault->call;
        plan.errorNumber = trial.fault->errorNumber;
        plan.first = trial.fault->nth;
        plan.count = trial.fault->count();
        plan.inBackgroundOnly = trial.kind.isThreaded && trial.fault->call == Call::malloc;
    }
    if (!trial.kind.watched.empty())
        std::snprintf(plan.path.data(), plan.path.size(), "%s",
                      (home / trial.kind.watched).c_str());
    return plan;
}

Ending endingOf(const std::exception_ptr &thrown)
{
    try {
        if (thrown)
            std::rethrow_exception(thrown);
    } catch (const Loadwick::ProbeError &) {
        return Ending::probeError;
    } catch (const std::system_error &) {
        return Ending::systemError;
    } catch (const std::bad_alloc &) {
        return Ending::outOfMemory;
    } catch (...) {
        return Ending::otherwise;
    }
    return Ending::returned;
}

/// Our threads and children may need a poll interval to notice the end.
std::optional<std::string> remainsBeyond(const Loadwick::ProcessCensus &before)
{
    constexpr std::chrono::seconds pollIntervals(1);
    const auto isQuiet = [&before] {
        return Loadwick::ProcessCensus::now().isWithin(before) && waitpid(-1, nullptr, WNOHANG) < 0;
    };
    if (Loadwick::eventually(isQuiet, pollIntervals))
        return std::nullopt;
    const Loadwick::ProcessCensus now = Loadwick::ProcessCensus::now();
    return "left behind: " + std::to_string(now.descriptors - before.descriptors) +
           " descriptors, " + std::to_string(now.threads - before.threads) + " threads, " +
           (waitpid(-1, nullptr, WNOHANG) < 0 ? "no child" : "a child");
}

struct Report
{
    Tally tally;
    std::array<char, 400> problem{}; ///< empty when there is none
};

Report performed(const Trial &trial, const fs::path &home, Progress &progress)
{
    progress.begin("making ready");
    if (trial.before)
        trial.before();
    const std::unique_ptr<Operation> operation = trial.kind.make(home);
    const Plan plan = planOf(trial, home);
    const Loadwick::ProcessCensus census = Loadwick::ProcessCensus::now();
    std::exception_ptr thrown;
    progress.begin("performing");
    Shim::arm(plan);
    try {
        operation->perform();
    } catch (...) {
        thrown = std::current_exception();
    }
    Report report{.tally = Shim::disarm()};
    progress.begin("checking the result");
    if (trial.after)
        trial.after();
    auto problem = remainsBeyond(census);
    if (!problem && report.tally.inherited > 0)
        problem = "descriptors were open to children: " + std::to_string(report.tally.inherited);
    const auto excuse = trial.fault && trial.fault->isToBeRepeated() ? std::nullopt : trial.fault;
    if (!problem)
        problem = operation->problem(endingOf(thrown), excuse);
    std::snprintf(report.problem.data(), report.problem.size(), "%s", problem.value_or("").c_str());
    return report;
}

[[noreturn]] void beChild(const Trial &trial, const fs::path &home, Progress &progress,
                          const Loadwick::Pipe &pipe)
{
    if (trial.fault && getenv("LOADWICK_FAULTS_LOUD") == nullptr)
        dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
    clearenv();
    setenv("HOME", home.c_str(), 1);
    setenv("PATH", "/usr/bin:/bin", 1);
    const Report report = performed(trial, home, progress);
    progress.begin("ending");
    const ssize_t written = write(pipe.writeEnd.number(), &report, sizeof report);
    _exit(written == sizeof report ? 0 : 1);
}

std::optional<Report> reportFrom(int descriptor, double limitSeconds)
{
    Report report;
    pollfd answer{descriptor, POLLIN, 0};
    if (poll(&answer, 1, static_cast<int>(limitSeconds * 1000)) <= 0 ||
        read(descriptor, &report, sizeof report) != sizeof report)
        return std::nullopt;
    return report;
}

std::string deathOf(int status, const std::string &functions)
{
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
        return "it never returned from " + functions;
    if (WIFSIGNALED(status))
        return std::string("ended by ") + strsignal(WTERMSIG(status));
    return "ended with status " + std::to_string(WEXITSTATUS(status));
}

} // namespace

Trial::Verdict Trial::run(const fs::path &workFolder) const
{
    static int number = 0;
    const fs::path home = workFolder / std::to_string(++number);
    fs::create_directory(home);
    Loadwick::Pipe pipe = Loadwick::Pipe::open();
    Progress progress;
    const pid_t child = fork();
    if (child < 0)
        Loadwick::fatalError("no process for a trial");
    if (child == 0)
        beChild(*this, home, progress, pipe);
    pipe.writeEnd.reset();
    if (meanwhile)
        meanwhile(child);
    const std::optional<Report> report = reportFrom(pipe.readEnd.number(), limitSeconds);
    const bool hasEnded =
        report && Loadwick::ExitWatch(child).waitUntil(Loadwick::deadlineAfter(limitSeconds));
    const std::string functions = hasEnded ? std::string() : progress.of(child);
    if (!hasEnded)
        kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    std::error_code ignored; // a child that was left behind may still write
    fs::remove_all(home, ignored);
    if (!hasEnded)
        return {.tally = {}, .problem = deathOf(status, functions)};
    const std::string problem = report->problem.data();
    return {.tally = report->tally,
            .problem = problem.empty() ? std::nullopt : std::optional(problem)};
}

} // namespace Faults
