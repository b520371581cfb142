#pragma once

#include <cstdint>
#include <vector>

#include "report/SlabAttribution.h"

namespace Loadwick {

/// A total taken apart.
struct AttributionOutcome
{
    std::vector<SlabAttribution> rows; ///< heaviest first, then by name, then by creation
    std::int64_t remainder;            ///< what no other row explains; 0 or more
    bool overAttributed;               ///< the rows explain more than the total
    bool categoriesSelfReported;

    friend bool operator==(const AttributionOutcome &, const AttributionOutcome &) = default;
};

} // namespace Loadwick
