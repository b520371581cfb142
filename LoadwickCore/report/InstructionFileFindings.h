#pragma once

#include <atomic>
#include <mutex>
#include <set>
#include <string>

#include "report/InstructionFileSet.h"

namespace Loadwick {

/// What a walk has found so far, shared between the thread that walks and the one that waits: it
/// may be read at any moment, and the walk may be told to end. Every operation may be called from
/// any thread.
class InstructionFileFindings
{
public:
    void add(InstructionFileTier tier, InstructionFileEstimate file);
    void addUnreadable(std::string path);

    /// A copy of everything so far.
    [[nodiscard]] InstructionFileSet set() const;

    /// Nobody waits any more: the walk ends before the next file.
    void stop() noexcept { m_isStopped = true; }
    [[nodiscard]] bool isStopped() const noexcept { return m_isStopped; }

private:
    mutable std::mutex m_mutex;
    InstructionFileSet m_files;
    std::set<std::string> m_unreadablePaths;
    std::atomic<bool> m_isStopped = false;
};

} // namespace Loadwick
