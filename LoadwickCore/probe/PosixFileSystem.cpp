#include "probe/PosixFileSystem.h"

#include <memory>
#include <string>

#include <dirent.h>
#include <sys/stat.h>

#include "probe/FolderEntryKind.h"

namespace Loadwick {

namespace {

struct ListingCloser
{
    void operator()(DIR *listing) const noexcept { ::closedir(listing); }
};
using Listing = std::unique_ptr<DIR, ListingCloser>;

unsigned char typeOf([[maybe_unused]] const dirent &entry) noexcept
{
#ifdef _DIRENT_HAVE_D_TYPE
    return entry.d_type;
#else
    return 0; // DT_UNKNOWN
#endif
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
    std::string name; // one for all entries: making a text for each took half of the time
    while (const dirent *const entry = ::readdir(listing.get())) {
        name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        const EntryKind kind =
            folderEntryKind(::dirfd(listing.get()), entry->d_name, typeOf(*entry));
        if (visit(name, kind) == Walk::stop)
            return;
    }
}

bool PosixFileSystem::mayHold(const std::filesystem::path &path) const
{
    struct stat status
    {};
    return ::stat(path.c_str(), &status) == 0;
}

} // namespace Loadwick
