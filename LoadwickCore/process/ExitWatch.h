#pragma once

#include <sys/types.h>

#include "posix/FileDescriptor.h"
#include "process/Deadline.h"

namespace Loadwick {

/// Sees a child end without reaping it, so that its number stays its own for as long as somebody
/// may signal it.
class ExitWatch
{
public:
    /// `child` is a child of this process that has not been reaped.
    explicit ExitWatch(pid_t child) noexcept;

    /// Blocks until the child has ended or `deadline` has come; true for the former. A child that
    /// is not ours (any more) counts as ended.
    [[nodiscard]] bool waitUntil(Deadline deadline) const;

private:
    pid_t m_child;
    FileDescriptor m_handle; ///< becomes readable when the child ends; none where unsupported
};

} // namespace Loadwick
