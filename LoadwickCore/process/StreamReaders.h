#pragma once

#include <cstddef>
#include <memory>

#include "posix/FileDescriptor.h"
#include "process/OutputBox.h"

namespace Loadwick {

/// The background readers of one child's streams. What they touch is theirs as well, so that one
/// that is still blocked may outlive this object; it then stops at its next look at the deadline.
class StreamReaders
{
public:
    /// Keeps up to `captureLimit` bytes of each stream.
    explicit StreamReaders(std::size_t captureLimit);
    ~StreamReaders();

    StreamReaders(const StreamReaders &) = delete;
    StreamReaders &operator=(const StreamReaders &) = delete;

    /// Starts reading a duplicate of `readEnd`; a stream of which there can be none stays empty.
    /// Throws `std::system_error` when there is no thread to be had.
    void start(const FileDescriptor &readEnd, OutputBox::Stream stream);

    /// Gives the readers `graceSeconds` from now to come to the end of their streams, and waits
    /// for them a second longer. True when every stream was read to its end.
    [[nodiscard]] bool finish(double graceSeconds);

    /// What was read.
    [[nodiscard]] OutputBox &box() noexcept;

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};

} // namespace Loadwick
