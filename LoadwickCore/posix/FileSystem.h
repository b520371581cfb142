#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace Loadwick {

/// The disk queries that the transcript search needs.
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
        proceed,
        stop
    };

    /// `name` is the entry's last component, in bytes. Return `stop` to end the listing.
    using Visitor = std::function<Walk(const std::string &name, EntryKind kind)>;

    virtual ~FileSystem() = default;

    /// Visits the entries of `folder` in the disk's own order, without "." and "..". A link to a
    /// file counts as a file, a link to a folder as `other`. A folder that cannot be listed has no
    /// entries.
    virtual void list(const std::filesystem::path &folder, const Visitor &visit) const = 0;

    /// Whether the path may exist. False is certain; true is not, because a disk may accept other
    /// names for the same entry: only a listing confirms it.
    [[nodiscard]] virtual bool mayHold(const std::filesystem::path &path) const = 0;

    /// Whether `folder` may hold folders; false only where the disk counts them.
    [[nodiscard]] virtual bool mayHoldFolders(const std::filesystem::path & /*folder*/) const
    {
        return true;
    }
};

/// The machine's own disks. Kinds come from the folder's listing; an entry is examined only if the
/// listing does not tell its kind or it is a link.
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
