#include "text/Fatal.h"

#include <cstdio>
#include <cstdlib>

namespace Loadwick {

void fatalError(std::string_view message) noexcept
{
    std::fprintf(stderr, "loadwick: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

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
