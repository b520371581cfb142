#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "report/InstructionFileFindings.h"
#include "report/InstructionFileScanner.h"

namespace Loadwick {

/// One walk over the instruction files of a repository: its own, those of the folders above it up
/// to the home folder, the user's, and what they import, each file's imports before the next file.
/// It owns all that it touches, so that it may outlive whoever waits for it.
class InstructionFileWalk
{
public:
    /// Folders above the repository beyond this many are not searched.
    static constexpr int ancestorLimit = 64;

    InstructionFileWalk(const InstructionFileScanner::Settings &settings,
                        const std::filesystem::path &repository,
                        std::shared_ptr<InstructionFileFindings> findings);

    /// Blocks for as long as the disk does, or until the findings are stopped.
    void run();

private:
    /// A file that has been counted, with what is needed to walk its imports again.
    struct SeenFile
    {
        int depth = 0;
        std::vector<std::string> importTokens;
        bool isReadDenied = false;
    };

    void admit(const std::filesystem::path &url, int depth, InstructionFileTier origin);
    [[nodiscard]] std::optional<SeenFile> countedFile(const std::filesystem::path &url,
                                                      InstructionFileTier origin);
    [[nodiscard]] std::vector<std::filesystem::path> ancestorFolders() const;
    [[nodiscard]] InstructionFileTier tierOf(const std::filesystem::path &url,
                                             InstructionFileTier origin) const;
    [[nodiscard]] std::filesystem::path importTarget(std::string_view token,
                                                     const std::filesystem::path &importer) const;

    std::filesystem::path m_root;
    std::filesystem::path m_home;
    int m_maxImportDepth;
    std::shared_ptr<InstructionFileFindings> m_findings;
    std::map<std::string, SeenFile> m_seen; ///< by path with every link resolved
};

} // namespace Loadwick
