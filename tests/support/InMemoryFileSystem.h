#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "posix/FileSystem.h"

namespace Loadwick {

/// A tree of names that a test builds. Entries are listed in the order of their addition, and every
/// listing is recorded.
class InMemoryFileSystem : public FileSystem
{
public:
    /// Adds an entry to the listing of its parent folder.
    void add(const std::filesystem::path &path, EntryKind kind);

    void list(const std::filesystem::path &folder, const Visitor &visit) const override;
    [[nodiscard]] bool mayHold(const std::filesystem::path &path) const override;

    /// The folders that were listed, in order.
    [[nodiscard]] const std::vector<std::filesystem::path> &listed() const { return m_listed; }

private:
    std::map<std::filesystem::path, std::vector<std::pair<std::string, EntryKind>>> m_entries;
    mutable std::vector<std::filesystem::path> m_listed;
};

} // namespace Loadwick
