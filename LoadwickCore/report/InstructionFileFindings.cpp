#include "report/InstructionFileFindings.h"

#include <utility>

namespace Loadwick {

void InstructionFileFindings::add(InstructionFileTier tier, InstructionFileEstimate file)
{
    const std::lock_guard lock(m_mutex);
    switch (tier) {
    case InstructionFileTier::repository:
        m_files.repositoryFiles.push_back(std::move(file));
        return;
    case InstructionFileTier::inherited:
        m_files.inheritedFiles.push_back(std::move(file));
        return;
    case InstructionFileTier::personal:
        m_files.personalFiles.push_back(std::move(file));
        return;
    }
}

void InstructionFileFindings::addUnreadable(std::string path)
{
    const std::lock_guard lock(m_mutex);
    m_unreadablePaths.insert(std::move(path));
}

InstructionFileSet InstructionFileFindings::set() const
{
    const std::lock_guard lock(m_mutex);
    InstructionFileSet files = m_files;
    files.unreadablePaths.assign(m_unreadablePaths.begin(), m_unreadablePaths.end());
    return files;
}

} // namespace Loadwick
