// Kills the writer of the history before and after each of its system calls, and checks what such a
// crash leaves: the old file or the new one, and a history that accepts the next scan.
//
//   loadwick-crashes               every system call
//   loadwick-crashes SCENARIO N    one of them

#include <array>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "faults/crashes/TracedWork.h"
#include "faults/driver/HistoryFixture.h"
#include "history/ScanHistoryStore.h"
#include "samples/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using Faults::HistoryFixture;
using Loadwick::ScanHistoryStore;

struct Scenario
{
    std::string_view name;
    HistoryFixture::Start start;
    void (*work)(ScanHistoryStore &store);
    bool isBehindLink = false;
};

void append(ScanHistoryStore &store)
{
    static_cast<void>(store.append(Faults::sampleScan(4)));
}

void clear(ScanHistoryStore &store)
{
    store.clear();
}

constexpr std::array scenarios{
    Scenario{"append", HistoryFixture::Start::threeScans, append},
    Scenario{"append-first", HistoryFixture::Start::nothing, append},
    Scenario{"append-behind-link", HistoryFixture::Start::threeScans, append, true},
    Scenario{"clear", HistoryFixture::Start::threeScans, clear},
    Scenario{"clear-behind-link", HistoryFixture::Start::threeScans, clear, true},
};

/// The store over the fixture, through a link if the scenario has one.
ScanHistoryStore storeFor(const Scenario &scenario, const HistoryFixture &fixture,
                          const fs::path &home)
{
    if (!scenario.isBehindLink)
        return ScanHistoryStore(fixture.folder());
    fs::create_directory(home / "linked");
    fs::create_symlink(fixture.path(), home / "linked" / ScanHistoryStore::fileName);
    return ScanHistoryStore(home / "linked");
}

/// What is wrong with the file that the killed writer left, and with the next recording.
std::optional<std::string> problemAfter(const Scenario &scenario, const HistoryFixture &fixture,
                                        ScanHistoryStore &store)
{
    const bool mayBeGone = scenario.work == clear;
    if (!fixture.bytes() && !fixture.isUntouched() && !mayBeGone)
        return "the history file is gone";
    if (fixture.bytes() && !fixture.isUntouched())
        if (auto problem = fixture.problemOf(*fixture.bytes(), std::nullopt))
            return problem;
    const auto before = store.load();
    const auto scan = Faults::sampleScan(5);
    const auto listed = store.append(scan);
    if (listed.size() != before.size() + 1 || listed.back() != scan || store.load() != listed)
        return "the next scan was not recorded";
    return fixture.leftovers();
}

/// False when the work ended before `stop`.
bool isKilled(const Scenario &scenario, long stop, std::optional<std::string> &problem)
{
    const Loadwick::TemporaryFolder home;
    const HistoryFixture fixture(home.path(), scenario.start);
    ScanHistoryStore store = storeFor(scenario, fixture, home.path());
    if (!Faults::isKilledAt(stop, [&] { scenario.work(store); }))
        return false;
    problem = problemAfter(scenario, fixture, store);
    return true;
}

struct Score
{
    long kills = 0;
    long problems = 0;
};

void killEverywhere(const Scenario &scenario, Score &score)
{
    const long before = score.kills;
    std::optional<std::string> problem;
    for (long stop = 1; isKilled(scenario, stop, problem); ++stop) {
        ++score.kills;
        if (!problem)
            continue;
        ++score.problems;
        std::cout << "PROBLEM " << scenario.name << ' ' << stop << ": " << *problem << '\n';
    }
    std::cout << scenario.name << ": " << score.kills - before << " kills" << std::endl;
}

int replay(std::string_view name, long stop)
{
    for (const Scenario &scenario : scenarios) {
        if (scenario.name != name)
            continue;
        std::optional<std::string> problem;
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
    Score score;
    for (const Scenario &scenario : scenarios)
        killEverywhere(scenario, score);
    std::cout << score.kills << " kills, " << score.problems << " problems\n";
    return score.problems == 0 && score.kills > 0 ? 0 : 1;
}
