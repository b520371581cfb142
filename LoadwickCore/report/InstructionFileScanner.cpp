#include "report/InstructionFileScanner.h"

#include <chrono>
#include <memory>
#include <utility>

#include "process/BoundedCall.h"
#include "report/InstructionFileWalk.h"

namespace Loadwick {

InstructionFileScanner::InstructionFileScanner(Settings settings) : m_settings(std::move(settings))
{}

InstructionFileSet InstructionFileScanner::scan(const std::filesystem::path &repository)
{
    const auto findings = std::make_shared<InstructionFileFindings>();
    const std::chrono::duration<double> limit(m_settings.limitSeconds);
    (void)callWithin(limit,
                     [walk = InstructionFileWalk(m_settings, repository, findings)]() mutable {
                         walk.run();
                         return true;
                     });
    findings->stop();
    return findings->set();
}

InstructionFileSet
InstructionFileScanner::scanSynchronously(const std::filesystem::path &repository) const
{
    const auto findings = std::make_shared<InstructionFileFindings>();
    InstructionFileWalk(m_settings, repository, findings).run();
    return findings->set();
}

} // namespace Loadwick
