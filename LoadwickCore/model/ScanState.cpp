#include "model/ScanState.h"

#include "text/UnicodeText.h"

namespace Loadwick {

ScanState::ScanState(Case value) : m_case(std::move(value)) {}

ScanState ScanState::idle()
{
    return ScanState(Idle{});
}

ScanState ScanState::scanning()
{
    return ScanState(Scanning{});
}

ScanState ScanState::result(ScanReport report)
{
    return ScanState(Result{std::move(report)});
}

ScanState ScanState::failed(ProbeError error)
{
    return ScanState(Failed{std::move(error)});
}

bool ScanState::isScanning() const noexcept
{
    return std::holds_alternative<Scanning>(m_case);
}

ProbeError probeErrorFrom(const std::exception &error) noexcept
{
    try {
        return ProbeError::unreadableOutput(repairedUtf8(error.what()));
    } catch (const std::exception &) {
        return ProbeError::unreadableOutput("out of memory"); // short enough to need none
    }
}

} // namespace Loadwick
