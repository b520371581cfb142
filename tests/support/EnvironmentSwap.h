#pragma once

#include <string>
#include <vector>

namespace Loadwick {

/// Replaces the test program's environment while it lives. Nothing else may read or change the
/// environment meanwhile.
class EnvironmentSwap
{
public:
    /// Entries are "NAME=value"; a test may pass malformed ones.
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
