#include "model/HistoryKeeper.h"

#include <functional>
#include <new>
#include <numeric>
#include <utility>

namespace Loadwick {

namespace {

/// Freeing as many may take longer than a frame.
constexpr std::size_t manyCategories = 20'000;

std::size_t categoriesOf(const HistoryKeeper::History &history)
{
    return std::transform_reduce(history.begin(), history.end(), std::size_t{0}, std::plus<>(),
                                 [](const RecordedScan &scan) { return scan.categories.size(); });
}

} // namespace

HistoryKeeper::HistoryKeeper(std::shared_ptr<ScanHistoryStore> store,
                             std::shared_ptr<TaskDispatcher> dispatcher)
    : m_records(std::make_shared<Records>(Records{.store = std::move(store)})),
      m_dispatcher(std::move(dispatcher)),
      m_tasks(m_dispatcher),
      m_isLoaded(m_records->store == nullptr)
{}

void HistoryKeeper::load()
{
    if (store() == nullptr || m_isAsked)
        return;
    run([](Records &records) { records.last = records.store->load(); },
        [](HistoryKeeper &self) { self.m_isLoaded = true; });
    m_isAsked = true;
}

void HistoryKeeper::record(const RecordedScan &scan)
{
    if (store() == nullptr)
        return;
    change([scan](Records &records) { records.last = records.store->append(scan, records.last); });
}

void HistoryKeeper::clear()
{
    if (store() == nullptr)
        return m_history.set({});
    change([](Records &records) {
        records.store->clear();
        records.last.clear();
    });
}

void HistoryKeeper::finish() const
{
    if (m_unwritten > 0)
        m_tasks.finish();
}

template<typename Work>
void HistoryKeeper::change(Work work)
{
    load(); // what is recorded stays
    run(std::move(work), [](HistoryKeeper &self) { --self.m_unwritten; });
    ++m_unwritten;
}

/// Allocates what delivering the outcome needs: memory may have run out after the work.
template<typename Work, typename Arrive>
void HistoryKeeper::run(Work work, Arrive arrive)
{
    const auto outcome = std::make_shared<std::optional<History>>();
    TaskDispatcher::Task arrival = [weak = weak_from_this(), arrive, outcome] {
        if (const std::shared_ptr<HistoryKeeper> self = weak.lock()) {
            arrive(*self);
            self->publish(*outcome);
        }
    };
    m_tasks.run([records = m_records, work = std::move(work), outcome, dispatcher = m_dispatcher,
                 arrival = std::move(arrival)]() mutable {
        try {
            work(*records);
            *outcome = records->last;
        } catch (const std::bad_alloc &) {
            // What was recorded remains, on disk and on the pages.
        }
        dispatcher->postToInterface(std::move(arrival));
    });
}

void HistoryKeeper::publish(std::optional<History> &outcome)
{
    History before = m_history.get();
    m_history.set(outcome ? std::move(*outcome) : before);
    if (categoriesOf(before) >= manyCategories)
        m_tasks.run([before = std::move(before)] {}); // freed in the background
}

} // namespace Loadwick
