#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <span>

#include "posix/FileDescriptor.h"
#include "process/ReaderDeadline.h"

/// Reads a pipe to its end, or to the reader's deadline.
namespace Loadwick::PipeDrain {

inline constexpr std::size_t bufferSize = 65'536; ///< bytes
inline constexpr std::chrono::milliseconds pollInterval{50};
inline constexpr std::chrono::microseconds backOff{1'000}; ///< after a read that had to give up

using Sink = std::function<void(std::span<const char> chunk)>;

/// Hands every chunk that comes to `sink` and closes `descriptor` at the end, which it makes
/// non-blocking. True when it stopped because `deadline` had passed, at most `pollInterval` after;
/// false at the end of the stream and on an error. Blocking.
[[nodiscard]] bool run(FileDescriptor descriptor, const ReaderDeadline &deadline, const Sink &sink);

} // namespace Loadwick::PipeDrain
