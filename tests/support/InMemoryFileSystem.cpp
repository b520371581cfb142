#include "support/InMemoryFileSystem.h"

#include <algorithm>

namespace Loadwick {

void InMemoryFileSystem::add(const std::filesystem::path &path, EntryKind kind)
{
    m_entries[path.parent_path()].emplace_back(path.filename().native(), kind);
}

void InMemoryFileSystem::list(const std::filesystem::path &folder, const Visitor &visit) const
{
    m_listed.push_back(folder);
    const auto entries = m_entries.find(folder);
    if (entries == m_entries.end())
        return;
    for (const auto &[name, kind] : entries->second)
        if (visit(name, kind) == Walk::stop)
            return;
}

bool InMemoryFileSystem::mayHold(const std::filesystem::path &path) const
{
    const auto entries = m_entries.find(path.parent_path());
    return entries != m_entries.end() &&
           std::any_of(entries->second.begin(), entries->second.end(),
                       [&](const auto &entry) { return entry.first == path.filename(); });
}

} // namespace Loadwick
