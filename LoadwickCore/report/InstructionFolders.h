#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>

#include <sys/types.h>

#include "posix/FileDescriptor.h"
#include "posix/RegularFile.h"

namespace Loadwick {

/// The folders of the files that one walk comes by. The way to a folder, with its links, is gone
/// once for all its files: going it for the look at each took a third as long as to open, read and
/// close the file.
class InstructionFolders
{
public:
    /// Descriptors that are held at most; files of further folders are reached by their whole path.
    static constexpr std::size_t heldLimit = 32;

    /// A file that was looked at and not opened.
    struct Place
    {
        std::string identityPath; ///< no link in it; a path that leads nowhere is its own
        mode_t type;              ///< a link being one itself; 0 when nothing is there
        int folder;               ///< where `name` begins, as `openat` takes it
        std::string name;
    };

    /// `url` is a path without NUL.
    [[nodiscard]] Place placeOf(const std::string &url);

    /// The file at a place, if it is regular or a link to one.
    [[nodiscard]] static std::optional<RegularFile>
    opened(const std::string &url, const Place &place, RegularFile::Failure &failure);

private:
    struct Folder
    {
        std::string resolvedPath; ///< with a slash at its end
        FileDescriptor descriptor;
    };

    [[nodiscard]] const Folder &folderAt(const std::string &path);

    std::unordered_map<std::string, Folder> m_folders; ///< by path with a slash at its end
};

} // namespace Loadwick
