#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "overview/InstructionFilePlaces.h"
#include "report/InstructionFileSet.h"

namespace Loadwick {

/// One line of a list of instruction files. It owns nothing: what it points to belongs to the set
/// of files that it was made from.
struct ListedFile
{
    std::string_view path;
    const InstructionFileEstimate *estimate = nullptr; ///< none: it could not be read

    /// All files with figures, in the order of their tiers and of discovery.
    [[nodiscard]] static std::vector<ListedFile> allReadable(const InstructionFileSet &files);

    /// The files of each tier, those with figures first, then the unreadable paths that belong to
    /// the tier, ascending. A path that is in both lists appears once, with its figures.
    [[nodiscard]] static std::array<std::vector<ListedFile>, 3>
    byTier(const InstructionFileSet &files, const InstructionFilePlaces &places);

    /// The `count` files with the most tokens, largest first; equal ones in their order.
    [[nodiscard]] static std::vector<ListedFile> largest(const InstructionFileSet &files,
                                                         std::size_t count);
};

} // namespace Loadwick
