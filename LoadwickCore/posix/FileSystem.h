#pragma once

#include <filesystem>
#include <functional>

namespace Loadwick {

/// What the transcript search asks of a disk.
class FileSystem
{
public:
    enum class EntryKind
    {
        file,
        folder,
        other
    };
    enum class Walk
    {
        goOn,
        stop
    };

    /// `name` is the entry's last component, in bytes. Return `stop` to end the listing.
    using Visitor = std::function<Walk(const std::string &name, EntryKind kind)>;

    virtual ~FileSystem() = default;

    /// Visits the entries of `folder` in the disk's own order, "." and ".." left out. A link counts
    /// as what it leads to when that is a file, and as `other` when it leads to a folder. A folder
    /// that cannot be listed has no entries.
    virtual void list(const std::filesystem::path &folder, const Visitor &visit) const = 0;

    /// Whether something may answer to that path. A disk may take other names for the same, so only
    /// a listing tells what is there; no is certain.
    [[nodiscard]] virtual bool mayHold(const std::filesystem::path &path) const = 0;

    /// Whether folders may stand in `folder`; no only where the disk keeps count of them.
    [[nodiscard]] virtual bool mayHoldFolders(const std::filesystem::path & /*folder*/) const
    {
        return true;
    }
};

} // namespace Loadwick
