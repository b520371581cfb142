#pragma once

#include "posix/FileSystem.h"

namespace Loadwick {

/// What the entry `name` of the open folder `folder` is. `type` is the DT_ constant with which the
/// folder lists it; where that says too little, the entry itself is looked at. A link to a file
/// counts as a file.
[[nodiscard]] FileSystem::EntryKind folderEntryKind(int folder, const char *name,
                                                    unsigned char type) noexcept;

} // namespace Loadwick
