#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "report/InstructionFileSet.h"

namespace Loadwick {

/// The folders that determine the tier of an instruction file by its path alone, and shorten it.
class TierFolders
{
public:
    TierFolders() = default;
    TierFolders(const std::filesystem::path &repository, const std::filesystem::path &home);

    /// Inside the repository: repository; in the home folder's ".claude": personal; else inherited.
    [[nodiscard]] InstructionFileTier tierOf(std::string_view path) const;

    /// From the repository on; empty for what it does not hold, and for itself.
    [[nodiscard]] std::string pathInRepository(std::string_view path) const;

    /// The same, after "./" if it begins with "~"; from "~" if only the home folder holds it; else
    /// the whole path. A home folder that is the root shortens nothing.
    [[nodiscard]] std::string shortPath(std::string_view path) const;

private:
    std::string m_repository; ///< without a slash at the end
    std::string m_home;       ///< the same; empty: none
    std::string m_personal;
};

/// One line of a list of instruction files. Owns nothing: it points into the set of files that it
/// was made from.
struct ListedFile
{
    std::string_view path;
    const InstructionFileEstimate *estimate = nullptr; ///< null: unreadable

    /// All files with figures, in the order of their tiers and of discovery.
    [[nodiscard]] static std::vector<ListedFile> allReadable(const InstructionFileSet &files);

    /// The files of each tier: those with figures first, then the unreadable paths that belong to
    /// the tier, ascending. A path in both lists appears once, with its figures.
    [[nodiscard]] static std::array<std::vector<ListedFile>, 3>
    byTier(const InstructionFileSet &files, const TierFolders &folders);

    /// The `count` files with the most tokens, largest first; equal ones in their order.
    [[nodiscard]] static std::vector<ListedFile> largest(const InstructionFileSet &files,
                                                         std::size_t count);
};

} // namespace Loadwick
