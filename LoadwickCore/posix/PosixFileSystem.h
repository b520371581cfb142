#pragma once

#include "posix/FileSystem.h"

namespace Loadwick {

/// The machine's own disks. Kinds are taken from the folder's listing; an entry is looked at only
/// where the listing does not tell, and where it is a link.
class PosixFileSystem : public FileSystem
{
public:
    void list(const std::filesystem::path &folder, const Visitor &visit) const override;
    [[nodiscard]] bool mayHold(const std::filesystem::path &path) const override;
    [[nodiscard]] bool mayHoldFolders(const std::filesystem::path &folder) const override;
};

} // namespace Loadwick
