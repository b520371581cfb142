#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "probe/SlabParser.h"
#include "report/InstructionFileSet.h"
#include "report/SlabAttributor.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// The input of an attribution, with few enough tokens to count one by one.
struct Input
{
    std::int64_t total = 0;
    std::vector<SelfReportedSlab> slabs;
    std::vector<LocalCategoryEstimate> estimates;
};

constexpr std::int64_t mostTokens = 99;

/// The total, then a line for each slab ("12 Memory files") and for each estimate, whose terms are
/// separated by bars ("|12 Repository|memoryfiles|claudemd").
Input inputOf(FuzzInput bytes)
{
    Input input;
    FuzzInput head(bytes.takeLine());
    input.total = head.takeInteger(mostTokens);
    while (!bytes.isAtEnd() && input.slabs.size() + input.estimates.size() < 24) {
        FuzzInput line(bytes.takeLine());
        const bool isEstimate = line.rest().starts_with('|');
        if (isEstimate)
            static_cast<void>(line.takeUpTo('|'));
        const std::int64_t tokens = line.takeInteger(mostTokens);
        const std::string name(line.takeUpTo('|'));
        if (!isEstimate) {
            input.slabs.push_back({.name = name, .tokens = tokens});
            continue;
        }
        input.estimates.push_back({.name = name, .tokens = tokens, .matchTerms = {}});
        while (!line.isAtEnd())
            input.estimates.back().matchTerms.emplace_back(line.takeUpTo('|'));
    }
    return input;
}

using Key = std::vector<UChar32>; // of code points

Key codePointsOf(const std::string &text)
{
    Key points;
    for (std::size_t index = 0; index < text.size();) {
        UChar32 point = 0;
        U8_NEXT(reinterpret_cast<const std::uint8_t *>(text.data()), index, text.size(), point);
        points.push_back(point);
    }
    return points;
}

/// Letters, numbers and what marks them, each judged by looking back at what it marks.
Key keyOf(const std::string &name)
{
    const Key points = codePointsOf(lowercased(name));
    const auto isOf = [&](std::size_t index, std::uint32_t categories) {
        return points[index] >= 0 && (U_GET_GC_MASK(points[index]) & categories) != 0;
    };
    Key key;
    for (std::size_t index = 0; index < points.size(); ++index) {
        std::size_t base = index;
        while (base > 0 && isOf(base, U_GC_M_MASK))
            --base;
        const UChar32 point = points[index];
        const bool isStyle = point == 0x20E3 || (point >= 0xFE00 && point <= 0xFE0F);
        if (isOf(base, U_GC_L_MASK | U_GC_N_MASK) && !isStyle)
            key.push_back(point);
    }
    return key;
}

/// The keys of an estimate's name and terms.
std::vector<Key> keysOf(const LocalCategoryEstimate &estimate)
{
    std::vector<Key> keys{keyOf(estimate.name)};
    for (const std::string &term : estimate.matchTerms)
        keys.push_back(keyOf(term));
    return keys;
}

/// Moves single tokens one at a time, like counters on a table.
class Table
{
public:
    explicit Table(const Input &input) : m_input(input)
    {
        for (const LocalCategoryEstimate &estimate : input.estimates) {
            m_left.push_back(std::max<std::int64_t>(estimate.tokens, 0));
            m_estimateKeys.push_back(keysOf(estimate));
        }
        for (const SelfReportedSlab &slab : input.slabs)
            m_slabKeys.push_back(keyOf(slab.name));
    }

    std::vector<SlabAttribution> rows()
    {
        if (m_input.slabs.empty())
            add("Startup context (categories not self-reported)",
                std::max<std::int64_t>(m_input.total, 0), Provenance::claudeReported);
        for (std::size_t index = 0; index < m_input.slabs.size(); ++index)
            if (isFirstOfItsName(index))
                addCategory(m_input.slabs[index].name, m_slabKeys[index]);
        for (const LocalCategoryEstimate &estimate : m_input.estimates)
            if (!m_input.slabs.empty() && estimate.tokens > 0)
                add(estimate.name, estimate.tokens, Provenance::localEstimate);
        std::int64_t missing = m_input.total;
        for (const SlabAttribution &row : m_rows)
            missing -= row.tokens;
        if (missing > 0)
            add("Unattributed", missing, Provenance::remainder);
        return m_rows;
    }

private:
    bool isFirstOfItsName(std::size_t index) const
    {
        const auto end = m_slabKeys.begin() + static_cast<std::ptrdiff_t>(index);
        return std::find(m_slabKeys.begin(), end, m_slabKeys[index]) == end;
    }

    void addCategory(const std::string &name, const Key &key)
    {
        std::int64_t reported = 0;
        for (std::size_t index = 0; index < m_slabKeys.size(); ++index)
            reported += m_slabKeys[index] == key ? m_input.slabs[index].tokens : 0;
        std::vector<std::size_t> matching;
        for (std::size_t index = 0; index < m_left.size(); ++index)
            if (matches(index, key))
                matching.push_back(index);
        if (matching.empty())
            return add(name, reported, Provenance::selfReported);
        std::int64_t beyond = 0;
        for (; reported > 0; --reported)
            beyond += takeOne(matching) ? 0 : 1;
        if (beyond > 0)
            add(name + " (beyond local estimate)", beyond, Provenance::selfReported);
    }

    bool matches(std::size_t index, const Key &key) const
    {
        const std::vector<Key> &keys = m_estimateKeys[index];
        return m_input.estimates[index].tokens > 0 &&
               std::find(keys.begin(), keys.end(), key) != keys.end();
    }

    bool takeOne(const std::vector<std::size_t> &matching)
    {
        for (const std::size_t index : matching) {
            if (m_left[index] > 0) {
                --m_left[index];
                return true;
            }
        }
        return false;
    }

    void add(const std::string &name, std::int64_t tokens, Provenance provenance)
    {
        m_rows.push_back({name, tokens, provenance, static_cast<std::int64_t>(m_rows.size())});
    }

    const Input &m_input;
    std::vector<Key> m_slabKeys;
    std::vector<std::vector<Key>> m_estimateKeys;
    std::vector<std::int64_t> m_left;
    std::vector<SlabAttribution> m_rows;
};

std::vector<SlabAttribution> byCreation(std::vector<SlabAttribution> rows)
{
    std::sort(rows.begin(), rows.end(),
              [](const auto &left, const auto &right) { return left.ordinal < right.ordinal; });
    return rows;
}

void checkOrder(const std::vector<SlabAttribution> &rows)
{
    for (std::size_t index = 1; index < rows.size(); ++index) {
        const SlabAttribution &above = rows[index - 1];
        const SlabAttribution &row = rows[index];
        const bool isTie = above.tokens == row.tokens;
        require(above.tokens > row.tokens || (isTie && above.name < row.name) ||
                    (isTie && above.name == row.name && above.ordinal < row.ordinal),
                "heaviest first, then by name, then by creation");
    }
}

/// The same with every figure multiplied by a billion.
Input enlarged(Input input)
{
    constexpr std::int64_t factor = 1'000'000'000;
    input.total *= factor;
    for (SelfReportedSlab &slab : input.slabs)
        slab.tokens *= factor;
    for (LocalCategoryEstimate &estimate : input.estimates)
        estimate.tokens *= factor;
    return input;
}

void checkAttribution(std::string_view bytes)
{
    const Input input = inputOf(FuzzInput(bytes));
    const AttributionOutcome outcome =
        SlabAttributor::attribute(input.total, input.slabs, input.estimates);
    require(byCreation(outcome.rows) == Table(input).rows(), "the rows are those of single tokens");
    checkOrder(outcome.rows);
    std::int64_t sum = 0;
    for (const SlabAttribution &row : outcome.rows)
        sum += row.tokens;
    require(outcome.overAttributed == (sum > input.total), "only excess is flagged as excess");
    require(outcome.overAttributed || sum == input.total, "rows and remainder are the total");
    const Input large = enlarged(input);
    const auto many = SlabAttributor::attribute(large.total, large.slabs, large.estimates);
    require(many.rows.size() == outcome.rows.size() &&
                many.remainder == outcome.remainder * 1'000'000'000,
            "large figures are split like small ones");
}

const FuzzTarget target("Attribution", checkAttribution);

} // namespace

} // namespace Loadwick
