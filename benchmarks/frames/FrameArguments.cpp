#include "FrameArguments.h"

#include <algorithm>
#include <cstdlib>

namespace Loadwick {

FrameArguments::FrameArguments(int argc, char **argv) : m_names(argv + 1, argv + argc)
{
    m_isCheck = std::erase(m_names, "--check") > 0;
    if (m_names.empty())
        return;
    m_rounds = std::max(1, std::atoi(m_names.front().c_str()));
    m_names.erase(m_names.begin());
}

bool FrameArguments::isWanted(const std::string &name) const
{
    return m_names.empty() || std::find(m_names.begin(), m_names.end(), name) != m_names.end();
}

} // namespace Loadwick
