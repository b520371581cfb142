#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace Loadwick {

/// The questions that the transcript search asks a disk.
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

    /// Visits the entries of `folder` in the disk's own order, "." and ".." left out. A link to a
    /// file counts as a file, a link to a folder as `other`. A folder that cannot be listed has no
    /// entries.
    virtual void list(const std::filesystem::path &folder, const Visitor &visit) const = 0;

    /// Whether something may answer to that path. A disk may accept other names for the same entry,
    /// so only a listing is certain of a yes; a no is certain.
    [[nodiscard]] virtual bool mayHold(const std::filesystem::path &path) const = 0;

    /// Whether `folder` may hold folders; no only where the disk counts them.
    [[nodiscard]] virtual bool mayHoldFolders(const std::filesystem::path & /*folder*/) const
    {
        return true;
    }
};

/// The machine's own disks. Kinds come from the folder's listing; an entry is examined only where
/// the listing does not tell, and where it is a link.
class PosixFileSystem : public FileSystem
{
public:
    void list(const std::filesystem::path &folder, const Visitor &visit) const override;
    [[nodiscard]] bool mayHold(const std::filesystem::path &path) const override;
    [[nodiscard]] bool mayHoldFolders(const std::filesystem::path &folder) const override;
};

/// The kind of the entry `name` of the open folder `folder`, which lists it with the DT_ constant
/// `type`.
[[nodiscard]] FileSystem::EntryKind folderEntryKind(int folder, const char *name,
                                                    unsigned char type) noexcept;

} // namespace Loadwick
