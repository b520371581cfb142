#pragma once

#include <cstdint>
#include <string>

namespace Loadwick {

/// One startup-context category as the session reported it about itself: an estimate.
struct SelfReportedSlab
{
    std::string name;    ///< as written, words joined by single blanks
    std::int64_t tokens; ///< 0 or more

    friend bool operator==(const SelfReportedSlab &, const SelfReportedSlab &) = default;
};

} // namespace Loadwick
