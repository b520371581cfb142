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

    /// The path as text: what a repository is told apart by.
    [[nodiscard]] std::string id() const;
    [[nodiscard]] std::string path() const { return id(); }

    friend bool operator==(const RepoSelection &, const RepoSelection &) = default;
};

} // namespace Loadwick
