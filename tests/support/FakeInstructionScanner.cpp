#include "support/FakeInstructionScanner.h"

namespace Loadwick {

InstructionFileSet FakeInstructionScanner::scan(const std::filesystem::path &repository)
{
    m_scans.push_back(repository);
    return answer();
}

} // namespace Loadwick
