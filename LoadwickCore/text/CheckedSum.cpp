#include "text/CheckedSum.h"

#include "text/Fatal.h"

namespace Loadwick {

std::int64_t checkedSum(std::int64_t left, std::int64_t right) noexcept
{
    std::int64_t sum = 0;
    if (__builtin_add_overflow(left, right, &sum))
        fatalError("a token sum does not fit 64 bits");
    return sum;
}

std::int64_t checkedDifference(std::int64_t left, std::int64_t right) noexcept
{
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(left, right, &difference))
        fatalError("a token difference does not fit 64 bits");
    return difference;
}

} // namespace Loadwick
