#include "text/Fatal.h"

#include <cstdio>
#include <cstdlib>

namespace Loadwick {

void fatalError(std::string_view message) noexcept
{
    std::fprintf(stderr, "loadwick: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

} // namespace Loadwick
