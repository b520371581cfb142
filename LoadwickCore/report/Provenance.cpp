#include "report/Provenance.h"

namespace Loadwick {

const std::array<Provenance, 4> Provenance::all{Provenance::claudeReported,
                                                Provenance::selfReported, Provenance::localEstimate,
                                                Provenance::remainder};

std::string_view Provenance::rawValue() const noexcept
{
    switch (m_value) {
    case claudeReported:
        return "claudeReported";
    case selfReported:
        return "selfReported";
    case localEstimate:
        return "localEstimate";
    case remainder:
        break;
    }
    return "remainder";
}

std::optional<Provenance> Provenance::fromRawValue(std::string_view text) noexcept
{
    for (const Provenance provenance : all)
        if (provenance.rawValue() == text)
            return provenance;
    return std::nullopt;
}

std::string_view Provenance::sourceLabel() const noexcept
{
    switch (m_value) {
    case claudeReported:
        return "reported by Claude";
    case selfReported:
        return "self-reported by the session (estimate)";
    case localEstimate:
        return "measured on disk at ~4 bytes/token (estimate)";
    case remainder:
        break;
    }
    return "derived: total minus attributed";
}

} // namespace Loadwick
