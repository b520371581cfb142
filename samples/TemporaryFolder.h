#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Loadwick {

/// A new empty folder, removed at the end with everything in it, even unreadable entries.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();

    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    [[nodiscard]] const std::filesystem::path &path() const noexcept { return m_path; }

    /// Writes a file below the folder, with its parent folders; returns its path.
    std::filesystem::path write(const std::filesystem::path &relative,
                                std::string_view bytes) const;

    /// Writes an executable file below the folder.
    std::filesystem::path writeScript(const std::filesystem::path &relative,
                                      std::string_view text) const;

private:
    std::filesystem::path m_path;
};

/// Writes a file with its parent folders; ends the program when it cannot be written.
void writeFile(const std::filesystem::path &path, std::string_view bytes);

/// The entries of a folder in alphabetical order.
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path &folder);

/// The bytes of a file; ends the program when it cannot be read.
[[nodiscard]] std::string contentOf(const std::filesystem::path &path);

} // namespace Loadwick
