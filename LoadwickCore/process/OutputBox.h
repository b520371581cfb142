#pragma once

#include <cstddef>
#include <mutex>
#include <optional>
#include <span>
#include <string>

#include "process/CapturedBytes.h"

namespace Loadwick {

/// What the readers of one execution put down and its caller picks up. Shared by their threads.
class OutputBox
{
public:
    enum class Stream
    {
        standardOutput,
        standardError
    };

    /// Keeps up to `limit` bytes of each stream.
    explicit OutputBox(std::size_t limit) noexcept : m_outData(limit), m_errData(limit) {}

    void append(Stream stream, std::span<const char> chunk) noexcept;

    /// Empties a stream; what comes for it later is dropped. Nothing when it exceeded the limit.
    /// Throws `std::bad_alloc`.
    [[nodiscard]] std::optional<std::string> take(Stream stream);

    /// There was no memory for a stream, all of which is lost: `take` of it would throw.
    [[nodiscard]] bool ranOutOfMemory() const;

    /// A reader had to stop before its stream ended.
    void noteReaderTimeOut();
    [[nodiscard]] bool readersDidTimeOut() const;

private:
    [[nodiscard]] CapturedBytes &bytes(Stream stream) noexcept;

    mutable std::mutex m_lock;
    CapturedBytes m_outData;
    CapturedBytes m_errData;
    bool m_readersDidTimeOut = false;
};

} // namespace Loadwick
