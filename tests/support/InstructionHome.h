#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "report/InstructionFileScanner.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

/// A home folder "home" with an empty repository "home/code/shop", and a scanner of that home.
class InstructionHome
{
public:
    InstructionHome();

    [[nodiscard]] std::filesystem::path home() const { return folder.path() / "home"; }
    [[nodiscard]] std::filesystem::path root() const { return home() / "code/shop"; }

    /// Writes a file below the repository.
    void writeOwn(const std::string &name, std::string_view text) const;

    [[nodiscard]] InstructionFileScanner scanner() const;
    [[nodiscard]] InstructionFileSet scanned() const;

    /// The paths of files, relative to the temporary folder.
    [[nodiscard]] std::vector<std::string>
    pathsOf(const std::vector<InstructionFileEstimate> &files) const;

    /// What a scan finds in the repository, relative to it.
    [[nodiscard]] std::vector<std::string> ownFiles() const;

    TemporaryFolder folder;
};

} // namespace Loadwick
