#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace Loadwick {

/// What was read from one stream, up to a limit. A long text gets address space for all that may
/// come at once: that costs no memory until it is written, and nothing is ever copied or held
/// twice.
class CapturedBytes
{
public:
    explicit CapturedBytes(std::size_t limit) noexcept : m_limit(limit) {}

    /// Adds `chunk`. Past the limit, or without memory for it, everything is dropped, now and from
    /// then on.
    void append(std::span<const char> chunk) noexcept;

    /// Whether `join` would throw, since memory ran out on the way.
    [[nodiscard]] bool ranOutOfMemory() const noexcept { return m_state == State::outOfMemory; }

    /// Everything, in order; nothing when there was more than the limit. Throws `std::bad_alloc`
    /// when memory had run out on the way.
    [[nodiscard]] std::optional<std::string> join() &&;

private:
    enum class State
    {
        complete,
        beyondLimit,
        outOfMemory
    };

    void makeRoomFor(std::size_t byteCount);
    void drop(State reason) noexcept;

    std::size_t m_limit;
    std::string m_text;
    State m_state = State::complete;
};

} // namespace Loadwick
