#include "probe/MemoryBlock.h"

#include <new>
#include <utility>

#include <sys/mman.h>

namespace Loadwick {

MemoryBlock::MemoryBlock(std::size_t byteCount)
{
    void *const memory =
        mmap(nullptr, byteCount, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    m_bytes = {static_cast<char *>(memory), byteCount};
}

MemoryBlock::~MemoryBlock()
{
    if (!m_bytes.empty())
        munmap(m_bytes.data(), m_bytes.size());
}

MemoryBlock::MemoryBlock(MemoryBlock &&other) noexcept : m_bytes(std::exchange(other.m_bytes, {}))
{}

MemoryBlock &MemoryBlock::operator=(MemoryBlock &&other) noexcept
{
    std::swap(m_bytes, other.m_bytes);
    return *this;
}

} // namespace Loadwick
