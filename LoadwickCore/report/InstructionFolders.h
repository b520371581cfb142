#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>

#include <sys/types.h>

#include "posix/FileDescriptor.h"
#include "posix/RegularFile.h"

namespace Loadwick {

/// The folders that one walk visits. The links in a folder's path are resolved once for all its
/// files: doing so for every file cost a third as much as opening, reading and closing it.
class InstructionFolders
{
public:
    /// At most this many descriptors are held; files of further folders are reached by their path.
    static constexpr std::size_t heldLimit = 32;

    /// A file that was examined without opening it.
    struct Entry
    {
        std::string identityPath; ///< with every link resolved; unchanged when nothing exists there
        mode_t type;              ///< as of `lstat`; 0 when nothing exists
        int folder;               ///< the folder of `name`, as `openat` takes it
        std::string name;
    };

    /// `path` holds no NUL.
    [[nodiscard]] Entry entryAt(const std::string &path);

    /// The entry's file, if it is regular or a link to a regular file.
    [[nodiscard]] static std::optional<RegularFile>
    opened(const std::string &path, const Entry &entry, RegularFile::Failure &failure);

private:
    struct Folder
    {
        std::string resolvedPath; ///< with a trailing slash
        FileDescriptor descriptor;
    };

    [[nodiscard]] const Folder &folderAt(const std::string &path);

    std::unordered_map<std::string, Folder> m_folders; ///< by path with a trailing slash
};

} // namespace Loadwick
