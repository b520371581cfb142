#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "faults/driver/HistoryFixture.h"
#include "history/ScanHistoryStore.h"
#include "samples/TemporaryFolder.h"

namespace Faults {

/// What the writer of the history is doing when it is cut short.
struct Scenario
{
    std::string_view name;
    HistoryFixture::Start start;
    void (*work)(Loadwick::ScanHistoryStore &store);
    bool isBehindLink = false;
    bool hasAbandoned = false; ///< beside the file, what a writer that crashed earlier left
};

[[nodiscard]] std::span<const Scenario> scenarios();

/// The folders and the store of one attempt at a scenario.
class Attempt
{
public:
    explicit Attempt(const Scenario &scenario);

    void work() { m_scenario.work(m_store); }

    /// Everything that the work changes is below it.
    [[nodiscard]] std::filesystem::path disk() const { return m_home.path() / "disk"; }

    /// What is wrong with the file that the interrupted work left, and with the next recording.
    [[nodiscard]] std::optional<std::string> problem();

    /// What is wrong with a disk on which the work had returned.
    [[nodiscard]] std::optional<std::string> problemOfReturned() const;

private:
    [[nodiscard]] bool isClearing() const;
    [[nodiscard]] Loadwick::ScanHistoryStore makeStore() const;

    const Scenario &m_scenario;
    Loadwick::TemporaryFolder m_home;
    HistoryFixture m_fixture;
    Loadwick::ScanHistoryStore m_store;
};

} // namespace Faults
