#include "base/SpareMemory.h"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace Loadwick {

void SpareMemory::giveBack() noexcept
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

} // namespace Loadwick
