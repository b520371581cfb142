#pragma once

#include <mutex>
#include <optional>

#include "process/Deadline.h"

namespace Loadwick {

/// The moment at which the readers of one execution stop, which nobody knows before its child has
/// ended. Shared by their threads.
class ReaderDeadline
{
public:
    void setExpiry(Deadline expiry);

    /// Nothing while the readers may wait without limit.
    [[nodiscard]] std::optional<Deadline> expiry() const;
    [[nodiscard]] bool hasPassed() const;

private:
    mutable std::mutex m_lock;
    std::optional<Deadline> m_expiry;
};

} // namespace Loadwick
