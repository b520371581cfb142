#include "support/ScanStateTable.h"

#include <algorithm>
#include <tuple>

namespace Loadwick {

void ScanStateTable::start()
{
    m_phase = Phase::idle;
    m_selection.reset();
    m_error.reset();
    m_history = m_isRecording ? loaded() : Entries();
    m_changes.clear();
}

void ScanStateTable::select(const RepoSelection &selection)
{
    m_changes.clear();
    if (m_phase == Phase::scanning)
        return;
    m_selection = selection;
    m_phase = Phase::idle;
    m_error.reset();
    m_changes = "st";
}

void ScanStateTable::scan()
{
    m_changes.clear();
    if (!canScan())
        return;
    m_scanned = m_selection;
    m_phase = Phase::scanning;
    m_error.reset();
    m_changes = "t";
}

void ScanStateTable::fail(const ProbeError &error)
{
    m_phase = Phase::failed;
    m_error = error;
    m_changes += 't';
}

void ScanStateTable::succeed(std::chrono::sys_seconds date)
{
    m_phase = Phase::result;
    m_changes += 't';
    if (!m_isRecording)
        return;
    Entries entries = loaded();
    const Entry entry{.repository = m_scanned->id(), .date = date};
    const auto name = [](const Entry &of) {
        return of.repository.substr(of.repository.rfind('/') + 1);
    };
    const auto behind = std::upper_bound(
        entries.begin(), entries.end(), entry, [&](const Entry &left, const Entry &right) {
            return std::tuple(left.date, name(left)) < std::tuple(right.date, name(right));
        });
    entries.insert(behind, entry);
    if (entries.size() > 200)
        entries.erase(entries.begin());
    if (m_diskWorks)
        m_disk = entries;
    m_history = entries;
    m_changes += 'h';
}

void ScanStateTable::clear()
{
    if (m_diskWorks && m_isRecording)
        m_disk.clear();
    m_history.clear();
    m_changes = "h";
}

void ScanStateTable::corrupt()
{
    if (m_diskWorks)
        m_disk.clear();
    m_changes.clear();
}

} // namespace Loadwick
