#include "posix/FileSystem.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#if defined(__linux__)
#include <linux/magic.h>
#include <sys/statfs.h>
#endif

#include "posix/FolderListing.h"

namespace Loadwick {

namespace {

/// Whether the disk that holds `folder` gives each folder one link for its name, one for its ".",
/// and one for the ".." of each folder in it. Others always give one (btrfs), always two (some
/// network disks), or the count of the layer on top (overlays).
bool countsFoldersAsLinks([[maybe_unused]] const std::filesystem::path &folder) noexcept
{
#if defined(__linux__)
    constexpr std::array<decltype(statfs::f_type), 3> counters{EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC,
                                                               TMPFS_MAGIC};
    struct statfs disk = {};
    (void)::statfs(folder.c_str(), &disk);
    return std::find(counters.begin(), counters.end(), disk.f_type) != counters.end();
#else
    return false;
#endif
}

/// The DT_ constant of an entry, by examining it; DT_UNKNOWN when that fails.
unsigned char examinedType(int folder, const char *name, int flags) noexcept
{
    struct stat status = {};
    if (::fstatat(folder, name, &status, flags) != 0)
        return DT_UNKNOWN;
    return static_cast<unsigned char>(IFTODT(status.st_mode));
}

} // namespace

void PosixFileSystem::list(const std::filesystem::path &folder, const Visitor &visit) const
{
    const FolderListing listing = openListing(folder);
    if (!listing)
        return;
    std::string name; // reused: a string per entry took half of the time
    while (const dirent *const entry = ::readdir(listing.get())) {
        name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        const EntryKind kind =
            folderEntryKind(::dirfd(listing.get()), entry->d_name, entry->d_type);
        if (visit(name, kind) == Walk::stop)
            return;
    }
}

bool PosixFileSystem::mayHold(const std::filesystem::path &path) const
{
    // A dangling link is an entry too, and a path that cannot be examined may be one.
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 || errno != ENOENT;
}

bool PosixFileSystem::mayHoldFolders(const std::filesystem::path &folder) const
{
    // Without a status the count stays 0, which rules nothing out.
    constexpr nlink_t linksWithoutFolders = 2;
    struct stat status = {};
    (void)::lstat(folder.c_str(), &status);
    return status.st_nlink != linksWithoutFolders || !countsFoldersAsLinks(folder);
}

FileSystem::EntryKind folderEntryKind(int folder, const char *name, unsigned char type) noexcept
{
    if (type == DT_UNKNOWN)
        type = examinedType(folder, name, AT_SYMLINK_NOFOLLOW);
    if (type == DT_LNK && examinedType(folder, name, 0) == DT_REG)
        type = DT_REG;
    switch (type) {
    case DT_REG:
        return FileSystem::EntryKind::file;
    case DT_DIR:
        return FileSystem::EntryKind::folder;
    default:
        return FileSystem::EntryKind::other;
    }
}

} // namespace Loadwick
