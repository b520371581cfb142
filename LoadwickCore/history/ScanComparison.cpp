#include "history/ScanComparison.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "history/RecordedScan.h"
#include "report/SlabAttributor.h"
#include "text/Fatal.h"

namespace Loadwick {
namespace {

using Side = CategoryChange::Side;

constexpr std::string_view suffix = SlabAttributor::beyondLocalEstimateSuffix;

/// The categories of two scans, each name once. Views into the scans.
class Union
{
public:
    Union(const RecordedScan &before, const RecordedScan &after)
    {
        const std::size_t limit = before.categories.size() + after.categories.size();
        m_positions.reserve(limit);
        m_changes.reserve(limit);
        for (const RecordedCategory &category : before.categories)
            add(changeOf(category.name).before, category.tokens);
        for (const RecordedCategory &category : after.categories)
            add(changeOf(category.name).after, category.tokens);
        for (CategoryChange &change : m_changes)
            joinWithWhole(change);
    }

    /// One that was joined with another is left without tokens.
    [[nodiscard]] std::vector<CategoryChange> take() { return std::move(m_changes); }

private:
    static void add(std::optional<std::int64_t> &tokens, std::int64_t more)
    {
        tokens = checkedSum(tokens.value_or(0), more);
    }

    CategoryChange &changeOf(std::string_view name)
    {
        const auto [known, isNew] = m_positions.try_emplace(name, m_changes.size());
        if (isNew)
            m_changes.push_back(
                {.name = std::string(name), .before = {}, .after = {}, .beyondLocalEstimate = {}});
        return m_changes[known->second];
    }

    /// Makes one change of a category that one scan has whole and the other beyond its estimate.
    void joinWithWhole(CategoryChange &excess)
    {
        if (!excess.name.ends_with(suffix))
            return;
        const auto whole = m_positions.find(
            std::string_view(excess.name).substr(0, excess.name.size() - suffix.size()));
        if (whole != m_positions.end())
            join(m_changes[whole->second], excess);
    }

    static void join(CategoryChange &whole, CategoryChange &excess)
    {
        if (whole.isOnlyIn(Side::after) && excess.isOnlyIn(Side::before)) {
            whole.before = std::exchange(excess.before, std::nullopt);
            whole.beyondLocalEstimate = Side::before;
        } else if (whole.isOnlyIn(Side::before) && excess.isOnlyIn(Side::after)) {
            whole.after = std::exchange(excess.after, std::nullopt);
            whole.beyondLocalEstimate = Side::after;
        }
    }

    std::unordered_map<std::string_view, std::size_t> m_positions; ///< in the changes
    std::vector<CategoryChange> m_changes;
};

/// Any 64-bit number has one.
std::uint64_t magnitude(std::int64_t number)
{
    const auto bits = static_cast<std::uint64_t>(number);
    return number < 0 ? 0 - bits : bits;
}

std::vector<CategoryChange> largestFirst(std::vector<CategoryChange> changes)
{
    // Sorts small keys, since a change is large to move.
    std::vector<std::pair<std::uint64_t, CategoryChange *>> order;
    order.reserve(changes.size());
    for (CategoryChange &change : changes)
        order.emplace_back(magnitude(change.difference()), &change);
    std::sort(order.begin(), order.end(), [](const auto &left, const auto &right) {
        return left.first != right.first ? left.first > right.first
                                         : left.second->name < right.second->name;
    });
    std::vector<CategoryChange> sorted;
    sorted.reserve(order.size());
    for (const auto &[size, change] : order)
        sorted.push_back(std::move(*change));
    return sorted;
}

} // namespace

std::int64_t CategoryChange::difference() const noexcept
{
    return checkedDifference(after.value_or(0), before.value_or(0));
}

std::int64_t ScanComparison::totalDifference() const noexcept
{
    return checkedDifference(totalAfter, totalBefore);
}

ScanComparison ScanComparison::between(const RecordedScan &before, const RecordedScan &after)
{
    ScanComparison comparison{.totalBefore = before.total,
                              .totalAfter = after.total,
                              .hasCategories =
                                  !before.categories.empty() && !after.categories.empty(),
                              .changes = {},
                              .unchangedCount = 0,
                              .unchangedTokens = 0};
    if (!comparison.hasCategories)
        return comparison;
    std::vector<CategoryChange> changes;
    for (CategoryChange &change : Union(before, after).take()) {
        if (change.isUnchanged()) {
            ++comparison.unchangedCount;
            comparison.unchangedTokens = checkedSum(comparison.unchangedTokens, *change.after);
        } else if (change.before || change.after) {
            changes.push_back(std::move(change));
        }
    }
    comparison.changes = largestFirst(std::move(changes));
    return comparison;
}

} // namespace Loadwick
