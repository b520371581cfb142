#include "posix/FolderEntryKind.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace Loadwick {

namespace {

using EntryKind = FileSystem::EntryKind;

/// The file type of an entry, by looking at it; 0 when that fails.
mode_t typeOf(int folder, const char *name, int flags) noexcept
{
    struct stat status
    {};
    if (::fstatat(folder, name, &status, flags) != 0)
        return 0;
    return status.st_mode & S_IFMT;
}

EntryKind kindOfLink(int folder, const char *name) noexcept
{
    return typeOf(folder, name, 0) == S_IFREG ? EntryKind::file : EntryKind::other;
}

EntryKind kindByLooking(int folder, const char *name) noexcept
{
    switch (typeOf(folder, name, AT_SYMLINK_NOFOLLOW)) {
    case S_IFREG:
        return EntryKind::file;
    case S_IFDIR:
        return EntryKind::folder;
    case S_IFLNK:
        return kindOfLink(folder, name);
    default:
        return EntryKind::other;
    }
}

} // namespace

EntryKind folderEntryKind(int folder, const char *name, unsigned char type) noexcept
{
    switch (type) {
    case DT_REG:
        return EntryKind::file;
    case DT_DIR:
        return EntryKind::folder;
    case DT_LNK:
        return kindOfLink(folder, name);
    case DT_UNKNOWN:
        return kindByLooking(folder, name);
    default:
        return EntryKind::other;
    }
}

} // namespace Loadwick
