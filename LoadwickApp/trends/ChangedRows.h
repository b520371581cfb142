#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include <QCoreApplication>

#include "base/ListOf.h"
#include "history/ScanComparison.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// One line of a comparison of two scans: their totals, or one category.
struct ChangedRow
{
    const ScanComparison *comparison; ///< never null
    const CategoryChange *category;   ///< null for the totals

    [[nodiscard]] std::int64_t difference() const noexcept; ///< tokens

    /// The length of its bar, -1 to 1: the difference as a fraction of the largest one of any
    /// category. The totals have none.
    [[nodiscard]] double length() const noexcept;

    Q_DECLARE_TR_FUNCTIONS(ChangedRow)
};

/// The totals, then every category that changed, in the comparison's order.
class ChangedRowsOf
{
public:
    ChangedRowsOf() = default;
    explicit ChangedRowsOf(std::shared_ptr<const ScanComparison> comparison)
        : m_comparison(std::move(comparison))
    {}

    [[nodiscard]] std::size_t size() const noexcept;
    [[nodiscard]] ChangedRow operator[](std::size_t index) const;

private:
    std::shared_ptr<const ScanComparison> m_comparison;
};

using ChangedRows = ListOf<ChangedRow, ChangedRowsOf>;

/// What a row says: "name" and "note" (whose figures these are, if that needs saying), "before" and
/// "after" (tokens, or that the scan lacks the category), "difference" with its sign, "kind" (the
/// `TrendKind` of the difference), "length" of the bar, "isTotal", and "sentence", all words of the
/// row.
[[nodiscard]] std::vector<ChangedRows::Role> changedRowRoles(const TextLocale &locale);

} // namespace Loadwick
