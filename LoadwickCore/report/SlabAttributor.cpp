#include "report/SlabAttributor.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "probe/SlabParser.h"
#include "report/InstructionFileSet.h"
#include "text/Fatal.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

struct ProvenanceWords
{
    std::string_view rawValue;
    std::string_view sourceLabel;
};

ProvenanceWords wordsOf(Provenance provenance) noexcept
{
    switch (provenance) {
    case Provenance::claudeReported:
        return {"claudeReported", "reported by Claude"};
    case Provenance::selfReported:
        return {"selfReported", "self-reported by the session (estimate)"};
    case Provenance::localEstimate:
        return {"localEstimate", "measured on disk at ~4 bytes/token (estimate)"};
    case Provenance::remainder:
        break;
    }
    return {"remainder", "derived: total minus attributed"};
}

} // namespace

std::string_view Provenance::rawValue() const noexcept
{
    return wordsOf(*this).rawValue;
}

std::string_view Provenance::sourceLabel() const noexcept
{
    return wordsOf(*this).sourceLabel;
}

std::string SlabAttribution::id() const
{
    return std::to_string(ordinal)
        .append("|")
        .append(provenance.rawValue())
        .append("|")
        .append(name);
}

namespace SlabAttributor {

namespace {

struct Local
{
    const LocalCategoryEstimate *estimate;
    std::unordered_set<std::string> keys; ///< normalised names that the estimate covers
    std::int64_t budget;                  ///< tokens that no self-reported slab has drawn yet
};

std::vector<Local> localsOf(std::span<const LocalCategoryEstimate> estimates)
{
    std::vector<Local> locals;
    for (const LocalCategoryEstimate &estimate : estimates) {
        if (estimate.tokens < 1)
            continue;
        Local local{&estimate, {normalize(estimate.name)}, estimate.tokens};
        for (const std::string &term : estimate.matchTerms)
            local.keys.insert(normalize(term));
        locals.push_back(std::move(local));
    }
    return locals;
}

void addRow(std::vector<SlabAttribution> &rows, std::string name, std::int64_t tokens,
            Provenance provenance)
{
    rows.push_back({.name = std::move(name),
                    .tokens = tokens,
                    .provenance = provenance,
                    .ordinal = static_cast<std::int64_t>(rows.size())});
}

/// A slab that no local estimate covers becomes a row; of a covered one, only the excess does.
void addSelfReported(std::vector<SlabAttribution> &rows, const SelfReportedSlab &slab,
                     std::vector<Local> &locals)
{
    const std::string key = normalize(slab.name);
    std::int64_t left = std::max<std::int64_t>(slab.tokens, 0);
    bool isMatched = false;
    for (Local &local : locals) {
        if (!local.keys.contains(key))
            continue;
        isMatched = true;
        const std::int64_t drawn = std::min(local.budget, left);
        local.budget -= drawn;
        left -= drawn;
    }
    if (!isMatched)
        addRow(rows, slab.name, slab.tokens, Provenance::selfReported);
    else if (left >= 1)
        addRow(rows, slab.name + std::string(beyondLocalEstimateSuffix), left,
               Provenance::selfReported);
}

std::vector<SlabAttribution> attributedRows(const SelfReportedSlabs &selfReported,
                                            std::span<const LocalCategoryEstimate> localEstimates)
{
    std::vector<SlabAttribution> rows;
    std::vector<Local> locals = localsOf(localEstimates);
    for (const SelfReportedSlab &slab : merged(selfReported))
        addSelfReported(rows, slab, locals);
    for (const Local &local : locals)
        addRow(rows, local.estimate->name, local.estimate->tokens, Provenance::localEstimate);
    return rows;
}

std::vector<SlabAttribution> unreportedRows(std::int64_t total)
{
    std::vector<SlabAttribution> rows;
    addRow(rows, std::string(unreportedCategoriesLabel), std::max<std::int64_t>(total, 0),
           Provenance::claudeReported);
    return rows;
}

std::int64_t tokensOf(const std::vector<SlabAttribution> &rows)
{
    std::int64_t tokens = 0;
    for (const SlabAttribution &row : rows)
        tokens = checkedSum(tokens, row.tokens);
    return tokens;
}

bool isHeavier(const SlabAttribution &left, const SlabAttribution &right)
{
    return left.tokens != right.tokens ? left.tokens > right.tokens : left.name < right.name;
}

} // namespace

AttributionOutcome attribute(std::int64_t total, const SelfReportedSlabs &selfReported,
                             std::span<const LocalCategoryEstimate> localEstimates)
{
    std::vector<SlabAttribution> rows =
        selfReported.empty() ? unreportedRows(total) : attributedRows(selfReported, localEstimates);
    const std::int64_t difference = checkedDifference(total, tokensOf(rows));
    if (difference >= 1)
        addRow(rows, std::string(remainderLabel), difference, Provenance::remainder);
    std::stable_sort(rows.begin(), rows.end(), isHeavier);
    return {.rows = std::move(rows),
            .remainder = std::max<std::int64_t>(difference, 0),
            .overAttributed = difference < 0,
            .categoriesSelfReported = !selfReported.empty()};
}

std::string normalize(std::string_view name)
{
    std::string key;
    setSearchKey(key, name);
    return key;
}

std::vector<SelfReportedSlab> merged(const SelfReportedSlabs &slabs)
{
    std::vector<SelfReportedSlab> result;
    std::unordered_map<std::string, std::size_t> indices;
    std::string key;
    for (std::size_t index = 0; index < slabs.size(); ++index) {
        const std::string_view name = slabs.name(index);
        setSearchKey(key, name);
        const auto [found, isNew] = indices.try_emplace(key, result.size());
        if (isNew)
            result.push_back({.name = std::string(name), .tokens = 0});
        std::int64_t &tokens = result[found->second].tokens;
        tokens = checkedSum(tokens, slabs.tokens(index));
    }
    return result;
}

} // namespace SlabAttributor

} // namespace Loadwick
