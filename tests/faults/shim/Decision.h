#pragma once

#include <dlfcn.h>

#include "faults/shim/FaultPlan.h"

namespace Faults {

/// Whether this call must fail; if so, sets `errno`. Allocates nothing.
[[nodiscard]] bool fails(Call call) noexcept;
[[nodiscard]] bool fails(Call call, const char *path) noexcept;
[[nodiscard]] bool fails(Call call, int descriptor) noexcept;

/// Passes a new descriptor on, and counts it if a child would inherit it.
int opened(int descriptor) noexcept;

/// The function that the shim interposes on.
template<typename Function>
[[nodiscard]] Function *behind(Function & /*ours*/, const char *name) noexcept
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace Faults
