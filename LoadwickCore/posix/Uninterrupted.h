#pragma once

#include <system_error>

namespace Loadwick {

/// The result of `call`, which reports its error in `failure`; made again as long as a signal
/// interrupts it, as disks in user space and on a network may.
template<typename Call>
auto uninterrupted(const std::error_code &failure, Call call)
{
    auto outcome = call();
    while (failure == std::errc::interrupted)
        outcome = call();
    return outcome;
}

} // namespace Loadwick
