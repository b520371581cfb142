#include "report/OverAttributionSource.h"

namespace Loadwick {

std::string_view OverAttributionSource::rawValue() const noexcept
{
    switch (m_value) {
    case selfReported:
        return "selfReported";
    case localEstimate:
        return "localEstimate";
    case combined:
        break;
    }
    return "combined";
}

std::optional<OverAttributionSource>
OverAttributionSource::fromRawValue(std::string_view text) noexcept
{
    for (const OverAttributionSource source : {selfReported, localEstimate, combined})
        if (source.rawValue() == text)
            return source;
    return std::nullopt;
}

} // namespace Loadwick
