// Kills the writer of the history before and after each of its system calls, or takes the power
// away from the disk there, and checks what that leaves: the old file or the new one, and a history
// that accepts the next scan.
//
//   loadwick-crashes                   kills at every system call
//   loadwick-crashes SCENARIO N        one of them
//   loadwick-crashes --power-failures  every content that a disk may have when the power fails

#include <iostream>
#include <set>
#include <string>
#include <string_view>

#include "faults/crashes/DiskModel.h"
#include "faults/crashes/Scenario.h"
#include "faults/crashes/TracedWork.h"

namespace {

using Faults::Attempt;
using Faults::DiskModel;
using Faults::Scenario;

using Problem = std::optional<std::string>;

struct Score
{
    long trials = 0;
    long problems = 0;
};

void count(Score &score, const Scenario &scenario, const std::string &moment,
           const Problem &problem)
{
    ++score.trials;
    if (!problem)
        return;
    ++score.problems;
    std::cout << "PROBLEM " << scenario.name << ' ' << moment << ": " << *problem << '\n';
}

/// False when the work ended before `stop`.
bool isKilled(const Scenario &scenario, long stop, Problem &problem)
{
    Attempt attempt(scenario);
    if (!Faults::isKilledAt(stop, [&] { attempt.work(); }))
        return false;
    problem = attempt.problem();
    return true;
}

void killEverywhere(const Scenario &scenario, Score &score)
{
    Problem problem;
    for (long stop = 1; isKilled(scenario, stop, problem); ++stop)
        count(score, scenario, std::to_string(stop), problem);
}

/// The disks that a power failure may leave during some work, and those after it.
struct Disks
{
    std::set<DiskModel::Image> during;
    std::set<DiskModel::Image> after;
};

Disks disksOf(Attempt &attempt)
{
    DiskModel model(attempt.disk());
    Disks disks;
    disks.during = model.images();
    const auto observe = [&](const Faults::ReturnedCall &call) {
        model.observe();
        disks.during.merge(model.images());
        if (call.synced)
            model.sync("/proc/" + std::to_string(call.process) + "/fd/" +
                       std::to_string(*call.synced));
    };
    Faults::traceCalls([&] { attempt.work(); }, observe);
    disks.after = model.images();
    return disks;
}

void failPowerEverywhere(const Scenario &scenario, Score &score)
{
    Attempt attempt(scenario);
    const Disks disks = disksOf(attempt);
    for (const DiskModel::Image &image : disks.during) {
        DiskModel::restore(image, attempt.disk());
        count(score, scenario, "without power", attempt.problem());
    }
    for (const DiskModel::Image &image : disks.after) {
        DiskModel::restore(image, attempt.disk());
        count(score, scenario, "without power once it had returned", attempt.problemOfReturned());
    }
}

int report(void (*tryEverything)(const Scenario &, Score &), std::string_view trials)
{
    Score score;
    for (const Scenario &scenario : Faults::scenarios()) {
        const long before = score.trials;
        tryEverything(scenario, score);
        std::cout << scenario.name << ": " << score.trials - before << ' ' << trials << std::endl;
    }
    std::cout << score.trials << ' ' << trials << ", " << score.problems << " problems\n";
    return score.problems == 0 && score.trials > 0 ? 0 : 1;
}

int replay(std::string_view name, long stop)
{
    for (const Scenario &scenario : Faults::scenarios()) {
        if (scenario.name != name)
            continue;
        Problem problem;
        const bool isReached = isKilled(scenario, stop, problem);
        std::cout << (isReached ? problem.value_or("as it should be") : "never reached") << '\n';
        return isReached && !problem ? 0 : 1;
    }
    std::cerr << "no such scenario\n";
    return 2;
}

} // namespace

int main(int count, char **texts)
{
    if (count == 3)
        return replay(texts[1], std::stol(texts[2]));
    if (count == 2 && std::string_view(texts[1]) == "--power-failures")
        return report(failPowerEverywhere, "disks");
    return report(killEverywhere, "kills");
}
