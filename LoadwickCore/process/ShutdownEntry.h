#pragma once

#include <memory>

#include <sys/types.h>

#include "process/Shutdown.h"

namespace Loadwick {

/// The place of one child on the list of a `Shutdown`, from before its start until before it is
/// reaped. Without a `Shutdown` it does nothing. Movable; taken off the list at the end.
class ShutdownEntry
{
public:
    /// Announces the child.
    explicit ShutdownEntry(std::shared_ptr<Shutdown> shutdown);
    ~ShutdownEntry();

    ShutdownEntry(ShutdownEntry &&other) noexcept = default;
    ShutdownEntry &operator=(ShutdownEntry &&other) = delete;
    ShutdownEntry(const ShutdownEntry &) = delete;
    ShutdownEntry &operator=(const ShutdownEntry &) = delete;

    /// False once the end was requested: the child must not be started.
    [[nodiscard]] bool isAnnounced() const noexcept { return m_isAnnounced; }

    /// Turns the announcement into an entry for the started child's group. False when the end was
    /// requested meanwhile: stop the child, and keep this object until that is done.
    [[nodiscard]] bool enter(pid_t group);

    /// Takes the child off the list. Call it before the child is reaped.
    void leave();

private:
    std::shared_ptr<Shutdown> m_shutdown;
    pid_t m_group = 0;
    bool m_isAnnounced = false;
};

} // namespace Loadwick
