#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Loadwick {

/// An empty folder of its own for one test, removed with all that is in it (also what has been
/// made unreadable) at the end.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();

    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    [[nodiscard]] const std::filesystem::path &path() const noexcept { return m_path; }

    /// Writes a file below the folder, with the folders above it; gives its path.
    std::filesystem::path write(const std::filesystem::path &relative,
                                std::string_view bytes) const;

    /// Writes an executable file below the folder.
    std::filesystem::path writeScript(const std::filesystem::path &relative,
                                      std::string_view text) const;

private:
    std::filesystem::path m_path;
};

/// What lies directly in a folder, in alphabetical order.
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path &folder);

/// The bytes of a file; ends the test program when it cannot be read.
[[nodiscard]] std::string contentOf(const std::filesystem::path &path);

} // namespace Loadwick
