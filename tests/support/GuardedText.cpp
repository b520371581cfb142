#include "support/GuardedText.h"

#include <algorithm>
#include <new>

#include <sys/mman.h>
#include <unistd.h>

namespace Loadwick {

GuardedText::GuardedText(std::string_view text)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    m_readable = (text.size() / page + 1) * page;
    void *const memory = mmap(nullptr, m_readable + page, PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    m_memory = static_cast<char *>(memory);
    if (mprotect(m_memory + m_readable, page, PROT_NONE) != 0)
        throw std::bad_alloc();
    char *const start = m_memory + m_readable - text.size();
    std::copy(text.begin(), text.end(), start);
    m_view = {start, text.size()};
}

GuardedText::~GuardedText()
{
    munmap(m_memory, m_readable + static_cast<std::size_t>(sysconf(_SC_PAGESIZE)));
}

} // namespace Loadwick
