#pragma once

#include <string>
#include <vector>

namespace Loadwick {

/// Puts an environment of its own in the place of the test program's, for as long as it lives.
/// Nothing else may read or change the environment meanwhile.
class EnvironmentSwap
{
public:
    /// Entries are "NAME=value"; nothing stops a test from giving malformed ones.
    explicit EnvironmentSwap(std::vector<std::string> entries);
    ~EnvironmentSwap();

    EnvironmentSwap(const EnvironmentSwap &) = delete;
    EnvironmentSwap &operator=(const EnvironmentSwap &) = delete;

private:
    std::vector<std::string> m_entries;
    std::vector<char *> m_pointers;
    char **m_before;
};

} // namespace Loadwick
