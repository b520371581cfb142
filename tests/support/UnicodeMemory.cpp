#include "support/UnicodeMemory.h"

#include <cstdlib>
#include <limits>

#include <unicode/uclean.h>

#include "text/Fatal.h"

namespace Loadwick {

namespace {

constexpr long everything = std::numeric_limits<long>::max();

long granted = everything;
bool wasRefused = false;

bool isRefused()
{
    wasRefused = wasRefused || granted <= 0;
    return granted-- <= 0;
}

void *allocate(const void * /*context*/, std::size_t size)
{
    return isRefused() ? nullptr : std::malloc(size);
}

void *reallocate(const void * /*context*/, void *block, std::size_t size)
{
    return isRefused() ? nullptr : std::realloc(block, size);
}

void release(const void * /*context*/, void *block)
{
    std::free(block);
}

} // namespace

// Earlier blocks of the library came from the same allocator.
UnicodeMemory::UnicodeMemory(long grants)
{
    UErrorCode status = U_ZERO_ERROR;
    u_setMemoryFunctions(nullptr, allocate, reallocate, release, &status);
    if (U_FAILURE(status))
        fatalError("the Unicode library refuses the allocator");
    wasRefused = false;
    granted = grants;
}

UnicodeMemory::~UnicodeMemory()
{
    granted = everything;
}

bool UnicodeMemory::ranOut() const noexcept
{
    return wasRefused;
}

} // namespace Loadwick
