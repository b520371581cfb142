#include "fuzz/FuzzInput.h"

#include <algorithm>
#include <cstddef>

namespace Loadwick {

std::string_view FuzzInput::takeUpTo(char separator) noexcept
{
    const std::size_t end = std::min(m_rest.find(separator), m_rest.size());
    const std::string_view taken = m_rest.substr(0, end);
    m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
    return taken;
}

std::int64_t FuzzInput::takeInteger(std::int64_t limit) noexcept
{
    const bool isNegative = m_rest.starts_with('-');
    m_rest.remove_prefix(isNegative ? 1 : 0);
    std::int64_t value = 0;
    while (!m_rest.empty() && m_rest.front() >= '0' && m_rest.front() <= '9') {
        value = (value * 10 + (m_rest.front() - '0')) % (limit + 1);
        m_rest.remove_prefix(1);
    }
    return isNegative ? -value : value;
}

} // namespace Loadwick
