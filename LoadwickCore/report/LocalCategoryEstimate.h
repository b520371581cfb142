#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Loadwick {

/// What one tier of instruction files costs in all, and under which names a session may report it.
struct LocalCategoryEstimate
{
    std::string name;
    std::int64_t tokens;
    std::vector<std::string> matchTerms; ///< normalised category names that this stands for

    friend bool operator==(const LocalCategoryEstimate &, const LocalCategoryEstimate &) = default;
};

} // namespace Loadwick
