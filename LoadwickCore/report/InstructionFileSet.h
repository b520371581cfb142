#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/InstructionFileEstimate.h"
#include "report/InstructionFileTier.h"
#include "report/LocalCategoryEstimate.h"

namespace Loadwick {

/// The instruction files of one repository, by tier, each tier in order of discovery.
struct InstructionFileSet
{
    std::vector<InstructionFileEstimate> repositoryFiles;
    std::vector<InstructionFileEstimate> inheritedFiles;
    std::vector<InstructionFileEstimate> personalFiles;
    std::vector<std::string> unreadablePaths; ///< ascending, each once

    static const InstructionFileSet empty;

    [[nodiscard]] const std::vector<InstructionFileEstimate> &files(InstructionFileTier tier) const;

    /// Repository, then inherited, then personal files.
    [[nodiscard]] std::vector<InstructionFileEstimate> allFiles() const;

    /// The name under which a tier stands in the breakdown.
    [[nodiscard]] static std::string_view categoryName(InstructionFileTier tier) noexcept;

    /// One estimate for each tier whose files cost at least one token, in the tiers' order.
    /// Overflow of a sum ends the program.
    [[nodiscard]] std::vector<LocalCategoryEstimate> localCategories() const;

    friend bool operator==(const InstructionFileSet &, const InstructionFileSet &) = default;
};

} // namespace Loadwick
