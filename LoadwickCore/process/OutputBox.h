#pragma once

#include <cstddef>
#include <mutex>
#include <optional>
#include <span>
#include <string>

#include "posix/FileDescriptor.h"

namespace Loadwick {

/// The bytes read from one stream, up to a limit. A long text reserves address space for its whole
/// limit up front: that costs no memory until it is written, and no byte is ever copied or held
/// twice.
class CapturedBytes
{
public:
    explicit CapturedBytes(std::size_t limit) noexcept : m_limit(limit) {}

    /// Adds `chunk`. Drops everything, now and from then on, beyond the limit or without memory.
    void append(std::span<const char> chunk) noexcept;

    /// Whether memory ran out, so that `join` would throw.
    [[nodiscard]] bool ranOutOfMemory() const noexcept { return m_state == State::outOfMemory; }

    /// Everything, in order; nothing when there was more than the limit. Throws `std::bad_alloc`
    /// when memory ran out.
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

/// The output of one execution, from its readers to its caller. Shared by their threads.
class OutputBox
{
public:
    enum class Stream
    {
        standardOutput,
        standardError
    };

    /// Keeps up to `limit` bytes of each stream. Throws `std::system_error` if no pipe can be
    /// opened.
    explicit OutputBox(std::size_t limit) : m_outData(limit), m_errData(limit) {}

    void append(Stream stream, std::span<const char> chunk) noexcept;

    /// Empties a stream and drops what it receives later. Nothing when it exceeded the limit.
    /// Throws `std::bad_alloc`.
    [[nodiscard]] std::optional<std::string> take(Stream stream);

    /// Whether a stream was lost for lack of memory: `take` would throw for it.
    [[nodiscard]] bool ranOutOfMemory() const;
    /// Readable once memory ran out.
    [[nodiscard]] int lossDescriptor() const noexcept { return m_loss.readEnd.number(); }

    /// Notes that a reader had to stop before its stream ended.
    void noteReaderTimeOut();
    [[nodiscard]] bool readersDidTimeOut() const;

private:
    [[nodiscard]] CapturedBytes &bytes(Stream stream) noexcept;

    mutable std::mutex m_lock;
    CapturedBytes m_outData;
    CapturedBytes m_errData;
    Pipe m_loss = Pipe::forSignal();
    bool m_readersDidTimeOut = false;
};

} // namespace Loadwick
