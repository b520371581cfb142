#pragma once

#include <cstdint>
#include <string>

#include "report/Provenance.h"

namespace Loadwick {

/// One row of the breakdown.
struct SlabAttribution
{
    std::string name;
    std::int64_t tokens;
    Provenance provenance;
    std::int64_t ordinal; ///< position in the order of creation, kept through sorting

    /// Unique within one outcome: "ordinal|provenance|name".
    [[nodiscard]] std::string id() const;

    friend bool operator==(const SlabAttribution &, const SlabAttribution &) = default;
};

} // namespace Loadwick
