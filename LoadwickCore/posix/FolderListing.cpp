#include "posix/FolderListing.h"

#include <cerrno>
#include <string>

namespace Loadwick {

FolderListing openListing(const std::filesystem::path &folder)
{
    // The system would truncate the path at a NUL and open another folder.
    if (folder.native().find('\0') != std::string::npos)
        return nullptr;
    FolderListing listing(::opendir(folder.c_str()));
    while (!listing && errno == EINTR)
        listing.reset(::opendir(folder.c_str()));
    return listing;
}

} // namespace Loadwick
