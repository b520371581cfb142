#pragma once

#include <cstddef>
#include <string_view>

namespace Loadwick {

/// A text at the very end of readable memory: to read the byte behind it ends the program.
class GuardedText
{
public:
    /// Throws std::bad_alloc.
    explicit GuardedText(std::string_view text);
    ~GuardedText();
    GuardedText(const GuardedText &) = delete;
    GuardedText &operator=(const GuardedText &) = delete;

    [[nodiscard]] std::string_view view() const noexcept { return m_view; }

private:
    std::size_t m_readable; // whole pages, which a page that denies access follows
    char *m_memory;
    std::string_view m_view;
};

} // namespace Loadwick
