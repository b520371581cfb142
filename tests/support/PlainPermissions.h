#pragma once

#include <cstdint>

namespace Loadwick {

/// While it lives, this thread and those that it starts obey the permissions of files and folders,
/// even as root. Create and destroy it on one thread.
class PlainPermissions
{
public:
    PlainPermissions();
    ~PlainPermissions();

    PlainPermissions(const PlainPermissions &) = delete;
    PlainPermissions &operator=(const PlainPermissions &) = delete;

private:
    std::uint32_t m_effectiveBefore; ///< the first 32 capabilities of this thread
};

} // namespace Loadwick
