#include <algorithm>
#include <array>
#include <random>

#include <gtest/gtest.h>

#include "probe/SlabParser.h"
#include "report/InstructionFileSet.h"
#include "report/SlabAttributor.h"

namespace Loadwick {

namespace {

/// A name in two spellings that mean the same category.
constexpr std::array<std::array<const char *, 2>, 9> names{{
    {"Memory files", "🗂️ memory_files"},
    {"CLAUDE.md", "claude md"},
    {"Messages", "MESSAGES"},
    {"MCP tools", "mcp-tools"},
    {"User memory", "user.memory"},
    {"Skills", "`Skills`"},
    {"1️⃣ System", "1-SYSTEM"},
    {"हिन्दी", "📁 हिन्दी ✔️"},
    {"Été", "+\u0301 ÉTÉ"},
}};

struct Slab
{
    std::size_t category;
    std::size_t spelling;
    std::int64_t tokens;
};

struct Estimate
{
    std::string name;
    std::int64_t tokens;
    std::vector<std::size_t> categories;
};

struct Input
{
    std::int64_t total;
    std::vector<Slab> slabs;
    std::vector<Estimate> estimates;
};

class RandomInputs
{
public:
    explicit RandomInputs(std::uint32_t seed) : m_random(seed) {}

    Input next()
    {
        Input input{upTo(60), {}, {}};
        for (std::int64_t count = upTo(6); count > 0; --count)
            input.slabs.push_back({index(names.size()), index(2), upTo(12)});
        for (std::int64_t count = upTo(3); count > 0; --count) {
            Estimate estimate{"Tier " + std::to_string(upTo(2)), upTo(12), {}};
            for (std::int64_t terms = upTo(3); terms > 0; --terms)
                estimate.categories.push_back(index(names.size()));
            input.estimates.push_back(estimate);
        }
        return input;
    }

private:
    std::int64_t upTo(std::int64_t limit)
    {
        return std::uniform_int_distribution<std::int64_t>(0, limit)(m_random);
    }
    std::size_t index(std::size_t size)
    {
        return std::uniform_int_distribution<std::size_t>(0, size - 1)(m_random);
    }

    std::mt19937 m_random;
};

/// Moves single tokens, one after the other, like counters on a table.
class Oracle
{
public:
    explicit Oracle(const Input &input) : m_input(input), m_left(input.estimates.size())
    {
        for (std::size_t index = 0; index < m_left.size(); ++index)
            m_left[index] = input.estimates[index].tokens;
    }

    std::vector<SlabAttribution> rows()
    {
        for (std::size_t first = 0; first < m_input.slabs.size(); ++first)
            if (isFirstOfItsCategory(first))
                addCategory(first);
        for (const Estimate &estimate : m_input.estimates)
            if (estimate.tokens > 0)
                add(estimate.name, estimate.tokens, Provenance::localEstimate);
        std::int64_t missing = m_input.total;
        for (const SlabAttribution &row : m_rows)
            missing -= row.tokens;
        if (missing > 0)
            add("Unattributed", missing, Provenance::remainder);
        sortByExchange();
        return m_rows;
    }

private:
    bool isFirstOfItsCategory(std::size_t index) const
    {
        for (std::size_t earlier = 0; earlier < index; ++earlier)
            if (m_input.slabs[earlier].category == m_input.slabs[index].category)
                return false;
        return true;
    }

    void addCategory(std::size_t first)
    {
        const Slab &slab = m_input.slabs[first];
        bool isMatched = false;
        for (const Estimate &estimate : m_input.estimates)
            isMatched = isMatched || matches(estimate, slab.category);
        std::int64_t beyond = 0;
        for (const Slab &other : m_input.slabs)
            if (other.category == slab.category)
                for (std::int64_t token = 0; token < other.tokens; ++token)
                    beyond += takeOne(slab.category) ? 0 : 1;
        const std::string name = names[slab.category][slab.spelling];
        if (!isMatched)
            add(name, beyond, Provenance::selfReported);
        else if (beyond > 0)
            add(name + " (beyond local estimate)", beyond, Provenance::selfReported);
    }

    bool takeOne(std::size_t category)
    {
        for (std::size_t index = 0; index < m_left.size(); ++index) {
            if (m_left[index] > 0 && matches(m_input.estimates[index], category)) {
                --m_left[index];
                return true;
            }
        }
        return false;
    }

    static bool matches(const Estimate &estimate, std::size_t category)
    {
        return estimate.tokens > 0 &&
               std::count(estimate.categories.begin(), estimate.categories.end(), category) > 0;
    }

    void add(const std::string &name, std::int64_t tokens, Provenance provenance)
    {
        m_rows.push_back({name, tokens, provenance, static_cast<std::int64_t>(m_rows.size())});
    }

    void sortByExchange()
    {
        for (std::size_t round = 0; round < m_rows.size(); ++round) {
            for (std::size_t index = 1; index < m_rows.size(); ++index) {
                const SlabAttribution &left = m_rows[index - 1];
                const SlabAttribution &right = m_rows[index];
                if (left.tokens < right.tokens ||
                    (left.tokens == right.tokens && left.name > right.name))
                    std::swap(m_rows[index - 1], m_rows[index]);
            }
        }
    }

    const Input &m_input;
    std::vector<std::int64_t> m_left;
    std::vector<SlabAttribution> m_rows;
};

AttributionOutcome attributed(const Input &input)
{
    std::vector<SelfReportedSlab> slabs;
    for (const Slab &slab : input.slabs)
        slabs.push_back({names[slab.category][slab.spelling], slab.tokens});
    std::vector<LocalCategoryEstimate> estimates;
    for (const Estimate &estimate : input.estimates) {
        estimates.push_back({estimate.name, estimate.tokens, {}});
        for (const std::size_t category : estimate.categories)
            estimates.back().matchTerms.emplace_back(names[category][0]);
    }
    return SlabAttributor::attribute(input.total, slabs, estimates);
}

} // namespace

TEST(SlabAttributorOracleTest, agreesWithCountingSingleTokens)
{
    RandomInputs inputs(20260823);
    for (int round = 0; round < 20'000; ++round) {
        const Input input = inputs.next();
        if (input.slabs.empty())
            continue;
        ASSERT_EQ(attributed(input).rows, Oracle(input).rows()) << "round " << round;
    }
}

TEST(SlabAttributorOracleTest, balancesRowsRemainderAndTotal)
{
    RandomInputs inputs(7);
    for (int round = 0; round < 20'000; ++round) {
        const Input input = inputs.next();
        const AttributionOutcome outcome = attributed(input);
        std::int64_t sum = 0;
        for (const SlabAttribution &row : outcome.rows)
            sum += row.tokens;
        ASSERT_EQ(outcome.overAttributed, sum > input.total) << "round " << round;
        ASSERT_TRUE(outcome.overAttributed || sum == input.total) << "round " << round;
        ASSERT_EQ(outcome.categoriesSelfReported, !input.slabs.empty()) << "round " << round;
        ASSERT_GE(outcome.remainder, 0) << "round " << round;
    }
}

} // namespace Loadwick
