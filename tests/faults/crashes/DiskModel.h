#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "posix/FileDescriptor.h"

namespace Faults {

/// What a disk may hold after a power failure, by what ext4 and XFS promise. Their journal makes
/// changes of folders durable whole and in the order in which they were made, at the latest when
/// the changed folder is synced. The content of a file is independent of it: until the file is
/// synced, every block may have what it had after any write or be zero, and the end may be missing.
class DiskModel
{
public:
    static constexpr std::size_t blockSize = 512; ///< bytes that a disk writes whole

    /// Contents by path below the root; nothing for a folder.
    using Image = std::map<std::string, std::optional<std::string>>;

    /// What `root` has now is durable. Links are left out.
    explicit DiskModel(std::filesystem::path root);

    /// Takes over what a system call changed. At most one call may have been made since the last.
    void observe();

    /// The file or folder, by any path that leads to it, was synced.
    void sync(const std::filesystem::path &path);

    /// What may be found if the power fails now.
    [[nodiscard]] std::set<Image> images() const;

    /// Makes the root hold an image and nothing else.
    static void restore(const Image &image, const std::filesystem::path &root);

private:
    using Number = std::uint64_t; // of an inode
    using Names = std::map<std::string, std::optional<Number>>;

    struct File
    {
        Loadwick::FileDescriptor hold;     ///< so that no other file gets its number
        std::vector<std::string> contents; ///< what it had since it was last synced, oldest first
    };

    Number observeFile(const std::filesystem::path &path);
    void syncFolder(const std::filesystem::path &folder);
    [[nodiscard]] static std::set<std::string> remainsOf(const File &file);

    std::filesystem::path m_root;
    std::vector<Names> m_names; ///< after each change since what is durable, oldest first
    std::map<Number, File> m_files;
};

} // namespace Faults
