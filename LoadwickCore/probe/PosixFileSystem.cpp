#include "probe/PosixFileSystem.h"

#include <memory>
#include <string>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace Loadwick {

namespace {

struct ListingCloser
{
    void operator()(DIR *listing) const noexcept { ::closedir(listing); }
};
using Listing = std::unique_ptr<DIR, ListingCloser>;

using EntryKind = FileSystem::EntryKind;

/// The file type of an entry, by looking at it; 0 when that fails.
mode_t typeOf(DIR *listing, const char *name, int flags) noexcept
{
    struct stat status
    {};
    if (::fstatat(::dirfd(listing), name, &status, flags) != 0)
        return 0;
    return status.st_mode & S_IFMT;
}

EntryKind kindOfLink(DIR *listing, const char *name) noexcept
{
    return typeOf(listing, name, 0) == S_IFREG ? EntryKind::file : EntryKind::other;
}

EntryKind kindByLooking(DIR *listing, const char *name) noexcept
{
    switch (typeOf(listing, name, AT_SYMLINK_NOFOLLOW)) {
    case S_IFREG:
        return EntryKind::file;
    case S_IFDIR:
        return EntryKind::folder;
    case S_IFLNK:
        return kindOfLink(listing, name);
    default:
        return EntryKind::other;
    }
}

EntryKind kindOf(DIR *listing, const dirent &entry) noexcept
{
#ifdef _DIRENT_HAVE_D_TYPE
    switch (entry.d_type) {
    case DT_REG:
        return EntryKind::file;
    case DT_DIR:
        return EntryKind::folder;
    case DT_LNK:
    case DT_UNKNOWN:
        break;
    default:
        return EntryKind::other;
    }
#endif
    return kindByLooking(listing, entry.d_name);
}

} // namespace

void PosixFileSystem::list(const std::filesystem::path &folder, const Visitor &visit) const
{
    // The system would cut the path at a NUL and list another folder.
    if (folder.native().find('\0') != std::string::npos)
        return;
    const Listing listing(::opendir(folder.c_str()));
    if (!listing)
        return;
    while (const dirent *const entry = ::readdir(listing.get())) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        if (visit(name, kindOf(listing.get(), *entry)) == Walk::stop)
            return;
    }
}

} // namespace Loadwick
