#include "support/PlainPermissions.h"

#ifdef __linux__
#include <array>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

#include "text/Fatal.h"

namespace Loadwick {

namespace {

#ifdef __linux__

/// Capabilities are a property of a thread; bare system calls, since nothing else of libcap is
/// needed.
std::uint32_t exchangeEffective(std::uint32_t removed, std::uint32_t added)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets{};
    if (syscall(SYS_capget, &header, sets.data()) != 0)
        fatalError("the capabilities of a test could not be read");
    const std::uint32_t before = sets[0].effective;
    sets[0].effective = (before & ~removed) | added;
    if (syscall(SYS_capset, &header, sets.data()) != 0)
        fatalError("the capabilities of a test could not be changed");
    return before;
}

constexpr std::uint32_t readEverything = (1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH);

#else

/// Elsewhere the tests run as a plain user.
std::uint32_t exchangeEffective(std::uint32_t, std::uint32_t)
{
    return 0;
}

constexpr std::uint32_t readEverything = 0;

#endif

} // namespace

PlainPermissions::PlainPermissions() : m_effectiveBefore(exchangeEffective(readEverything, 0)) {}

PlainPermissions::~PlainPermissions()
{
    exchangeEffective(0, m_effectiveBefore & readEverything);
}

} // namespace Loadwick
