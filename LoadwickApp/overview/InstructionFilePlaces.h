#pragma once

#include <filesystem>
#include <string_view>

#include "report/InstructionFileSet.h"

namespace Loadwick {

/// The folders by which a path alone tells whose instruction file it is.
class InstructionFilePlaces
{
public:
    InstructionFilePlaces(const std::filesystem::path &repository,
                          const std::filesystem::path &home);

    /// Inside the repository: repository; in the home folder's ".claude": personal; else inherited.
    [[nodiscard]] InstructionFileTier tierOf(std::string_view path) const;

private:
    std::string m_repository; ///< as text, without a slash at the end
    std::string m_personal;
};

} // namespace Loadwick
