#pragma once

namespace Loadwick::SpareMemory {

/// Returns the memory that was freed to the system, as far as the C library can. It keeps small
/// blocks for later otherwise: those of a page's pictures add up to tens of megabytes. Takes
/// milliseconds.
void giveBack() noexcept;

} // namespace Loadwick::SpareMemory
