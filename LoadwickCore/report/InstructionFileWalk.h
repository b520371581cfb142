#pragma once

#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "report/InstructionFileFindings.h"
#include "report/InstructionFileScanner.h"
#include "report/InstructionFolders.h"

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
        int depth = std::numeric_limits<int>::max(); ///< the smallest at which it was walked
        std::vector<std::string> importTokens;
        bool isReadDenied = false;
    };

    // Files are named by the text of their standardized path: a path object costs as much to make
    // as a file to open.
    void admit(const std::string &url, int depth, InstructionFileTier origin);
    [[nodiscard]] SeenFile *seenFile(const std::string &url, InstructionFileTier origin);
    [[nodiscard]] std::optional<SeenFile> countedFile(const std::string &url,
                                                      const InstructionFolders::Place &place,
                                                      InstructionFileTier origin);
    [[nodiscard]] std::vector<std::filesystem::path> ancestorFolders() const;
    [[nodiscard]] InstructionFileTier tierOf(std::string_view url,
                                             InstructionFileTier origin) const;
    [[nodiscard]] std::string importTarget(std::string_view token,
                                           const std::string &importer) const;

    std::filesystem::path m_root;
    std::filesystem::path m_home;
    int m_maxImportDepth;
    std::shared_ptr<InstructionFileFindings> m_findings;
    std::unordered_map<std::string, SeenFile> m_seen;        ///< by path with every link resolved
    std::unordered_map<std::string, SeenFile *> m_seenByURL; ///< the same by path as reached
    InstructionFolders m_folders;
};

} // namespace Loadwick
