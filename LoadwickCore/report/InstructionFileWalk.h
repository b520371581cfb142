#pragma once

#include <atomic>
#include <filesystem>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "report/InstructionFileScanner.h"
#include "report/InstructionFolders.h"

namespace Loadwick {

/// What a walk has found so far, shared between the thread that walks and the one that waits for
/// it. Every operation may be called from any thread.
class InstructionFileFindings
{
public:
    /// `importer` is the path of the file that imports this one; empty for one of the walk's own.
    void add(InstructionFileTier tier, InstructionFileEstimate file, std::string importer = {});
    void addUnreadable(std::string path);
    /// For a file that the walk looks for by itself, although an import led to it before.
    void forgetImporter(const std::string &path);

    /// A copy of everything so far.
    [[nodiscard]] InstructionFileSet set() const;

    /// Ends the walk before its next file: its caller has stopped waiting.
    void stop() noexcept { m_isStopped = true; }
    [[nodiscard]] bool isStopped() const noexcept { return m_isStopped; }

private:
    mutable std::mutex m_mutex;
    InstructionFileSet m_files;
    std::set<std::string> m_unreadablePaths;
    std::atomic<bool> m_isStopped = false;
};

/// One walk over the instruction files of a repository: its own, those of the folders above it up
/// to the home folder, the user's, and what they import, each file's imports before the next file.
/// It owns everything it uses, so that it may outlive its caller.
class InstructionFileWalk
{
public:
    /// At most this many folders above the repository are searched.
    static constexpr int ancestorLimit = 64;

    InstructionFileWalk(const InstructionFileScanner::Settings &settings,
                        const std::filesystem::path &repository,
                        std::shared_ptr<InstructionFileFindings> findings);

    /// Blocks for as long as the disk does, or until the findings are stopped.
    void run();

private:
    /// How a file was reached.
    struct Route
    {
        int depth;                  ///< imports on the way
        InstructionFileTier origin; ///< the tier of a file that is not the repository's own
        std::string_view importer = {};
    };

    /// A file that has been counted, with what is needed to walk its imports again.
    struct SeenFile
    {
        int depth = std::numeric_limits<int>::max(); ///< the smallest at which it was walked
        bool areImportsRead = false; ///< false for a large file at the last depth only
        std::vector<std::string> importTokens;
        bool isReadDenied = false;
    };

    // Files are named by the text of their standardized path: making a path object costs as much as
    // opening a file.
    void admit(const std::string &path, const Route &route);
    [[nodiscard]] SeenFile *seenFile(const std::string &path, const Route &route);
    [[nodiscard]] std::optional<SeenFile> countedFile(const std::string &path,
                                                      const InstructionFolders::Entry &entry,
                                                      const Route &route);
    void read(RegularFile &file, int depth, SeenFile &seen) const;
    [[nodiscard]] std::vector<std::filesystem::path> ancestorFolders() const;
    [[nodiscard]] InstructionFileTier tierOf(std::string_view path,
                                             InstructionFileTier origin) const;
    [[nodiscard]] std::string importTarget(std::string_view token,
                                           const std::string &importer) const;

    std::filesystem::path m_repository;
    std::filesystem::path m_home;
    int m_maxImportDepth;
    std::shared_ptr<InstructionFileFindings> m_findings;
    std::unordered_map<std::string, SeenFile> m_seen;         ///< by path with every link resolved
    std::unordered_map<std::string, SeenFile *> m_seenByPath; ///< the same by path as reached
    InstructionFolders m_folders;
};

} // namespace Loadwick
