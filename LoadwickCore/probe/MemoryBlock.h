#pragma once

#include <cstddef>
#include <span>

namespace Loadwick {

/// A piece of memory straight from the system, which gets it back at once when the piece is
/// dropped (an allocator may keep what it is given). Pages count only once they are written.
class MemoryBlock
{
public:
    /// Throws `std::bad_alloc`.
    explicit MemoryBlock(std::size_t byteCount);
    ~MemoryBlock();

    MemoryBlock(MemoryBlock &&other) noexcept;
    MemoryBlock &operator=(MemoryBlock &&other) noexcept;
    MemoryBlock(const MemoryBlock &) = delete;
    MemoryBlock &operator=(const MemoryBlock &) = delete;

    [[nodiscard]] std::span<char> bytes() const noexcept { return m_bytes; }

private:
    std::span<char> m_bytes;
};

} // namespace Loadwick
