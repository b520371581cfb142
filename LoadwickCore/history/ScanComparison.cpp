#include "history/ScanComparison.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <span>
#include <string_view>
#include <utility>

#include "report/SlabAttributor.h"
#include "text/Fatal.h"

namespace Loadwick {
namespace {

using Side = CategoryChange::Side;

constexpr std::string_view suffix = SlabAttributor::beyondLocalEstimateSuffix;

/// The categories of two scans, each name once. Views into the scans. A hash table without nodes,
/// since those of a standard one would make most of a large comparison a wait for memory.
class Union
{
public:
    Union(const RecordedScan &before, const RecordedScan &after)
        : m_slots(std::bit_ceil(2 * (before.categories.size() + after.categories.size())))
    {
        m_changes.reserve(m_slots.size() / 2);
        for (const RecordedCategory &category : before.categories)
            add(changeOf(category.name).before, category.tokens);
        for (const RecordedCategory &category : after.categories)
            add(changeOf(category.name).after, category.tokens);
        for (CategoryChange &excess : m_changes)
            joinWithWhole(excess);
    }

    /// One that was joined with another is left without tokens.
    [[nodiscard]] std::span<const CategoryChange> changes() const noexcept { return m_changes; }

private:
    static void add(std::optional<std::int64_t> &tokens, std::int64_t more)
    {
        tokens = checkedSum(tokens.value_or(0), more);
    }

    /// The slot with the name, or the empty one where it belongs. At least half of them are empty,
    /// and their number is a power of two.
    std::uint32_t &slotOf(std::string_view name)
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t place = std::hash<std::string_view>()(name) & mask;
        while (m_slots[place] != 0 && m_changes[m_slots[place] - 1].name != name)
            place = (place + 1) & mask;
        return m_slots[place];
    }

    CategoryChange &changeOf(std::string_view name)
    {
        std::uint32_t &slot = slotOf(name);
        if (slot == 0) {
            m_changes.push_back(
                {.name = name, .before = {}, .after = {}, .beyondLocalEstimate = {}});
            slot = static_cast<std::uint32_t>(m_changes.size());
        }
        return m_changes[slot - 1];
    }

    /// Makes one change of a category that one scan has whole and the other beyond its estimate.
    void joinWithWhole(CategoryChange &excess)
    {
        if (!excess.name.ends_with(suffix))
            return;
        const std::uint32_t whole =
            slotOf(excess.name.substr(0, excess.name.size() - suffix.size()));
        if (whole != 0)
            join(m_changes[whole - 1], excess);
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

    std::vector<std::uint32_t> m_slots; ///< positions of changes, counted from 1; 0 is empty
    std::vector<CategoryChange> m_changes;
};

/// Any 64-bit number has one.
std::uint64_t magnitude(std::int64_t number)
{
    const auto bits = static_cast<std::uint64_t>(number);
    return number < 0 ? 0 - bits : bits;
}

std::vector<CategoryChange> largestFirst(std::span<const CategoryChange *const> changes)
{
    // Sorts small keys, since a change is large to move.
    std::vector<std::pair<std::uint64_t, const CategoryChange *>> order;
    order.reserve(changes.size());
    for (const CategoryChange *change : changes)
        order.emplace_back(magnitude(change->difference()), change);
    std::sort(order.begin(), order.end(), [](const auto &left, const auto &right) {
        return left.first != right.first ? left.first > right.first
                                         : left.second->name < right.second->name;
    });
    std::vector<CategoryChange> sorted;
    sorted.reserve(order.size());
    for (const auto &[size, change] : order)
        sorted.push_back(*change);
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
                              .unchangedTokens = 0,
                              .categoriesBefore = before.categories,
                              .categoriesAfter = after.categories};
    if (!comparison.hasCategories)
        return comparison;
    const Union categories(before, after);
    std::vector<const CategoryChange *> changed;
    changed.reserve(categories.changes().size());
    for (const CategoryChange &change : categories.changes()) {
        if (change.isUnchanged()) {
            ++comparison.unchangedCount;
            comparison.unchangedTokens = checkedSum(comparison.unchangedTokens, *change.after);
        } else if (change.before || change.after) {
            changed.push_back(&change);
        }
    }
    comparison.changes = largestFirst(changed);
    return comparison;
}

} // namespace Loadwick
