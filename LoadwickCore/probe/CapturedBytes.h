#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "probe/MemoryBlock.h"

namespace Loadwick {

/// What was read from one stream, up to a limit. It grows by a sixteenth of itself at a time, and
/// is joined into one text piece by piece, so that memory stays near one byte per byte captured and
/// near two while joining.
class CapturedBytes
{
public:
    explicit CapturedBytes(std::size_t limit) noexcept : m_limit(limit) {}

    /// Adds `chunk`. Past the limit, or without memory for it, everything is dropped, now and from
    /// then on.
    void append(std::span<const char> chunk) noexcept;

    /// Whether `join` would throw, since memory ran out on the way.
    [[nodiscard]] bool ranOutOfMemory() const noexcept { return m_state == State::outOfMemory; }

    /// Everything, in order; nothing when there was more than the limit. Frees the pieces. Throws
    /// `std::bad_alloc`, also when memory had run out on the way.
    [[nodiscard]] std::optional<std::string> join() &&;

private:
    enum class State
    {
        complete,
        beyondLimit,
        outOfMemory
    };

    void store(std::span<const char> chunk);
    void drop(State reason) noexcept;

    std::size_t m_limit;
    std::size_t m_byteCount = 0;
    std::size_t m_freeInLast = 0;
    std::vector<MemoryBlock> m_blocks;
    State m_state = State::complete;
};

} // namespace Loadwick
