#pragma once

#include "posix/FileDescriptor.h"

namespace Loadwick {

/// A pipe whose ends are closed on exec and stand above the three standard descriptors, so that
/// giving a child its streams can never overwrite one with another.
struct Pipe
{
    FileDescriptor readEnd;
    FileDescriptor writeEnd;

    /// A new pipe, as large as the system permits: a command that writes its whole output and exits
    /// at once loses what the pipe cannot hold. Throws `std::system_error`.
    [[nodiscard]] static Pipe open();

    /// Bytes that the pipe holds; 0 where the system does not tell.
    [[nodiscard]] int capacity() const noexcept;
};

} // namespace Loadwick
