#include "support/EnvironmentSwap.h"

#include <utility>

#include <unistd.h>

namespace Loadwick {

EnvironmentSwap::EnvironmentSwap(std::vector<std::string> entries)
    : m_entries(std::move(entries)), m_before(environ)
{
    for (std::string &entry : m_entries)
        m_pointers.push_back(entry.data());
    m_pointers.push_back(nullptr);
    environ = m_pointers.data();
}

EnvironmentSwap::~EnvironmentSwap()
{
    environ = m_before;
}

} // namespace Loadwick
