#pragma once

#include <filesystem>
#include <string>

namespace Loadwick {

/// The folder that the user chose.
struct RepoSelection
{
    std::filesystem::path url; ///< bytes as the disk has them
    std::string displayName;

    /// Named after the folder's last path component, as text.
    [[nodiscard]] static RepoSelection fromUrl(const std::filesystem::path &url);

    /// The path as text, which identifies the repository.
    [[nodiscard]] std::string path() const;
    [[nodiscard]] std::string id() const { return path(); }

    friend bool operator==(const RepoSelection &, const RepoSelection &) = default;
};

} // namespace Loadwick
