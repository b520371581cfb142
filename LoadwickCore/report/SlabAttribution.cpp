#include "report/SlabAttribution.h"

namespace Loadwick {

std::string SlabAttribution::id() const
{
    return std::to_string(ordinal)
        .append("|")
        .append(provenance.rawValue())
        .append("|")
        .append(name);
}

} // namespace Loadwick
