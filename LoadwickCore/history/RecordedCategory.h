#pragma once

#include <cstdint>
#include <string>

namespace Loadwick {

/// One category of a recorded scan.
struct RecordedCategory
{
    std::string name; ///< made safe for storage by `RecordedCategoryName`
    std::int64_t tokens;

    friend bool operator==(const RecordedCategory &, const RecordedCategory &) = default;
};

} // namespace Loadwick
