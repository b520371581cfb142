#pragma once

#include <filesystem>
#include <memory>

#include <dirent.h>

namespace Loadwick {

struct FolderListingCloser
{
    void operator()(DIR *listing) const noexcept { ::closedir(listing); }
};

/// A folder that is open for `readdir`.
using FolderListing = std::unique_ptr<DIR, FolderListingCloser>;

/// Opens a folder, however often a signal interrupts that; null when it cannot be listed.
[[nodiscard]] FolderListing openListing(const std::filesystem::path &folder);

} // namespace Loadwick
