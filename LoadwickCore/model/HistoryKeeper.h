#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "history/RecordedScan.h"
#include "history/ScanHistoryStore.h"
#include "model/Published.h"
#include "model/SerialTasks.h"

namespace Loadwick {

/// The published history, and the store behind it, which is used in the background only: what is
/// asked of it is done in that order. Belongs to the interface thread. Owned by a shared pointer;
/// what was asked of it is done even after its end, and its outcome dropped.
class HistoryKeeper : public std::enable_shared_from_this<HistoryKeeper>
{
public:
    using History = std::vector<RecordedScan>;

    /// Without a store nothing is recorded.
    HistoryKeeper(std::shared_ptr<ScanHistoryStore> store,
                  std::shared_ptr<TaskDispatcher> dispatcher);

    [[nodiscard]] const ScanHistoryStore *store() const noexcept { return m_records->store.get(); }

    /// See `ScanModel`.
    [[nodiscard]] Published<History> &history() noexcept { return m_history; }
    [[nodiscard]] bool isComplete() const noexcept { return m_isLoaded && m_unwritten == 0; }

    /// Publishes what is recorded, once. The first change begins it too.
    void load();
    /// Throws `std::bad_alloc`, and records nothing, when there is no memory.
    void record(const RecordedScan &scan);
    void clear();

    /// Returns when every change that was asked for is made. Blocking.
    void finish() const;

private:
    /// Used by one task at a time, never on the interface thread.
    struct Records
    {
        std::shared_ptr<ScanHistoryStore> store;
        History last = {}; ///< what it gave last
    };

    template<typename Work>
    void change(Work work);
    template<typename Work, typename Arrive>
    void run(Work work, Arrive arrive);
    void publish(std::optional<History> &outcome);

    Published<History> m_history{{}};
    std::shared_ptr<Records> m_records;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    SerialTasks m_tasks;
    bool m_isAsked = false; ///< to load
    bool m_isLoaded;
    int m_unwritten = 0; ///< changes that are underway
};

} // namespace Loadwick
