#pragma once

#include <cstddef>
#include <memory>

#include "posix/FileDescriptor.h"
#include "process/OutputBox.h"

namespace Loadwick {

/// The background readers of one child's streams. They share ownership of everything they use, so
/// that a blocked reader may outlive this object; it then stops when it next checks the deadline.
class StreamReaders
{
public:
    /// Keeps up to `captureLimit` bytes of each stream. Throws `std::system_error` if no descriptor
    /// is left.
    explicit StreamReaders(std::size_t captureLimit);
    ~StreamReaders();

    StreamReaders(const StreamReaders &) = delete;
    StreamReaders &operator=(const StreamReaders &) = delete;

    /// Starts reading a duplicate of `readEnd`; the stream stays empty if that cannot be
    /// duplicated. Throws `std::system_error` if no thread can be started.
    void start(const FileDescriptor &readEnd, OutputBox::Stream stream);

    /// Gives the readers `graceSeconds` from now to reach the ends of their streams, and waits for
    /// them a second longer. True when every stream was read to its end.
    [[nodiscard]] bool finish(double graceSeconds);

    [[nodiscard]] OutputBox &box() noexcept;

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};

} // namespace Loadwick
