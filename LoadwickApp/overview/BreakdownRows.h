#pragma once

#include <cstdint>

#include "base/ListOf.h"
#include "report/ScanReport.h"
#include "report/SlabAttributor.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The rows of the breakdown for a view: "name", "tokens" (a grouped integer), "share" of the total
/// that Claude reported, "source" (where the figure comes from), "provenance" (the same as an
/// identifier) and "sentence" (the whole row, for assistive technology).
class BreakdownRows final : public ListOf<SlabAttribution>
{
public:
    explicit BreakdownRows(const TextLocale &locale);

    /// The report's rows in its order.
    void show(const ScanReport &report);

private:
    std::int64_t m_total = 0;
};

} // namespace Loadwick
