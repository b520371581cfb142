#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "posix/FileDescriptor.h"

namespace Loadwick {

/// A file under construction, which becomes another file at once or never. It has a random name
/// beside the file that it is to replace, and its writer holds a lock on it: one that nobody has
/// locked was left by a writer that crashed.
class TemporaryFile
{
public:
    /// Creates one for `target`, empty and locked, with mode 0600.
    [[nodiscard]] static std::optional<TemporaryFile>
    createFor(const std::filesystem::path &target);

    /// Removes what crashed writers left beside `target`. Never fails.
    static void removeAbandoned(const std::filesystem::path &target);

    TemporaryFile(TemporaryFile &&other) noexcept;
    TemporaryFile &operator=(TemporaryFile &&) = delete;
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    /// Removes the file unless it has become another one.
    ~TemporaryFile();

    /// Writes all of `bytes` and syncs them to the disk.
    [[nodiscard]] bool write(std::string_view bytes);

    /// Becomes `target`, whose old content is gone then.
    [[nodiscard]] bool replace(const std::filesystem::path &target);

private:
    TemporaryFile(FileDescriptor descriptor, std::string path) noexcept;

    FileDescriptor m_descriptor;
    std::string m_path; ///< empty once the file is not ours to remove
};

} // namespace Loadwick
