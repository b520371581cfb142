#include "faults/crashes/Scenario.h"

#include <array>

namespace Faults {

namespace {

namespace fs = std::filesystem;
using Loadwick::ScanHistoryStore;
using Start = HistoryFixture::Start;

void append(ScanHistoryStore &store)
{
    static_cast<void>(store.append(sampleScan(4)));
}

void clear(ScanHistoryStore &store)
{
    store.clear();
}

constexpr std::array all{
    Scenario{"append", Start::threeScans, append},
    Scenario{"append-first", Start::nothing, append},
    Scenario{"append-behind-link", Start::threeScans, append, true},
    Scenario{"append-beside-abandoned", Start::threeScans, append, false, true},
    Scenario{"clear", Start::threeScans, clear},
    Scenario{"clear-behind-link", Start::threeScans, clear, true},
    Scenario{"clear-beside-abandoned", Start::threeScans, clear, false, true},
};

} // namespace

std::span<const Scenario> scenarios()
{
    return all;
}

Attempt::Attempt(const Scenario &scenario)
    : m_scenario(scenario), m_fixture(disk(), scenario.start), m_store(makeStore())
{
    fs::create_directories(disk());
    if (scenario.hasAbandoned)
        Loadwick::writeFile(m_fixture.folder() / ".scan-history.json.aB3dEf", *m_fixture.bytes());
}

/// The store over the fixture, through a link if the scenario has one.
ScanHistoryStore Attempt::makeStore() const
{
    if (!m_scenario.isBehindLink)
        return ScanHistoryStore(m_fixture.folder());
    const fs::path linked = m_home.path() / "linked";
    fs::create_directory(linked);
    fs::create_symlink(m_fixture.path(), linked / ScanHistoryStore::fileName);
    return ScanHistoryStore(linked);
}

bool Attempt::isClearing() const
{
    return m_scenario.work == clear;
}

std::optional<std::string> Attempt::problem()
{
    if (!m_fixture.bytes() && !m_fixture.isUntouched() && !isClearing())
        return "the history file is gone";
    if (m_fixture.bytes() && !m_fixture.isUntouched())
        if (auto problem = m_fixture.problemOf(*m_fixture.bytes(), std::nullopt))
            return problem;
    const auto before = m_store.load();
    const auto scan = sampleScan(5);
    const auto listed = m_store.append(scan);
    if (listed.size() != before.size() + 1 || listed.back() != scan || m_store.load() != listed)
        return "the next scan was not recorded";
    return m_fixture.leftovers();
}

std::optional<std::string> Attempt::problemOfReturned() const
{
    return isClearing() ? m_fixture.problemAfterClear(std::nullopt)
                        : m_fixture.problemAfterAppend(std::nullopt);
}

} // namespace Faults
