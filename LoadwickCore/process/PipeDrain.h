#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <span>

#include "posix/FileDescriptor.h"
#include "process/Deadline.h"

namespace Loadwick {

/// The moment at which the readers of one execution stop, unknown until its child has ended. Shared
/// by their threads. Its constructor throws `std::system_error` if no pipe can be opened.
class ReaderDeadline
{
public:
    void setExpiry(Deadline expiry);

    /// Readable once the moment is known.
    [[nodiscard]] int descriptor() const noexcept { return m_known.readEnd.number(); }

    /// Nothing while the readers may wait without limit.
    [[nodiscard]] std::optional<Deadline> expiry() const;
    [[nodiscard]] bool hasPassed() const;

private:
    mutable std::mutex m_lock;
    std::optional<Deadline> m_expiry;
    Pipe m_known = Pipe::forSignal();
};

/// Reads a pipe to its end, or to the reader's deadline.
namespace PipeDrain {

inline constexpr std::size_t bufferSize = 65'536; ///< bytes
/// The longest wait once the deadline is known: it may still be brought forward.
inline constexpr std::chrono::milliseconds pollInterval{50};
inline constexpr std::chrono::microseconds backOff{1'000}; ///< after a read that found nothing

using Sink = std::function<void(std::span<const char> chunk)>;

/// Hands every chunk to `sink`, then closes `descriptor`, which it makes non-blocking. True when it
/// stopped because `deadline` had passed, at most `pollInterval` later; false at the end of the
/// stream and on an error. Blocking.
[[nodiscard]] bool run(FileDescriptor descriptor, const ReaderDeadline &deadline, const Sink &sink);

} // namespace PipeDrain

} // namespace Loadwick
