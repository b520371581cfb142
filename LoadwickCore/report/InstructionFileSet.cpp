#include "report/InstructionFileSet.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "report/ScanReport.h"
#include "text/Fatal.h"

namespace Loadwick {

namespace {

using Files = std::vector<InstructionFileEstimate>;

struct Tier
{
    std::string_view rawValue;
    std::string_view categoryName;
    Files InstructionFileSet::*files;
};

Tier tierOf(InstructionFileTier tier) noexcept
{
    switch (tier) {
    case InstructionFileTier::repository:
        return {"repository", ScanReport::repositoryCategoryName,
                &InstructionFileSet::repositoryFiles};
    case InstructionFileTier::inherited:
        return {"inherited", ScanReport::inheritedCategoryName,
                &InstructionFileSet::inheritedFiles};
    case InstructionFileTier::personal:
        break;
    }
    return {"personal", ScanReport::personalCategoryName, &InstructionFileSet::personalFiles};
}

std::vector<std::string> matchTerms(InstructionFileTier tier)
{
    switch (tier) {
    case InstructionFileTier::repository:
        return {"memoryfiles", "claudemd", "projectinstructions", "repoinstructions",
                "projectmemory"};
    case InstructionFileTier::inherited:
        return {"memoryfiles",      "claudemd",          "projectinstructions",
                "repoinstructions", "projectmemory",     "inheritedinstructions",
                "ancestormemory",   "parentinstructions"};
    case InstructionFileTier::personal:
        break;
    }
    return {"memoryfiles", "claudemd",           "userinstructions",
            "usermemory",  "globalinstructions", "personalmemory"};
}

std::int64_t tokensOf(const Files &files)
{
    std::int64_t tokens = 0;
    for (const InstructionFileEstimate &file : files)
        tokens = checkedSum(tokens, file.estimatedTokens);
    return tokens;
}

} // namespace

std::string_view InstructionFileTier::rawValue() const noexcept
{
    return tierOf(*this).rawValue;
}

InstructionFileEstimate InstructionFileEstimate::fromPath(std::string path, std::int64_t byteCount)
{
    return {.path = std::move(path),
            .byteCount = byteCount,
            .estimatedTokens = estimatedTokensForByteCount(byteCount)};
}

std::int64_t InstructionFileEstimate::estimatedTokensForByteCount(std::int64_t byteCount) noexcept
{
    if (byteCount < 1)
        return 0;
    return static_cast<std::int64_t>(std::ceil(static_cast<double>(byteCount) * 0.25));
}

const InstructionFileSet InstructionFileSet::empty{};

const Files &InstructionFileSet::files(InstructionFileTier tier) const
{
    return this->*tierOf(tier).files;
}

Files &InstructionFileSet::files(InstructionFileTier tier)
{
    return this->*tierOf(tier).files;
}

Files InstructionFileSet::allFiles() const
{
    Files all;
    for (const InstructionFileTier tier : InstructionFileTier::all)
        all.insert(all.end(), files(tier).begin(), files(tier).end());
    return all;
}

std::vector<std::string_view> InstructionFileSet::importChain(const std::string &path) const
{
    std::vector<std::string_view> chain;
    for (auto step = importers.find(path); step != importers.end();
         step = importers.find(step->second)) {
        // Two names that are not UTF-8 can have one text, and lead around in a circle.
        if (std::find(chain.begin(), chain.end(), step->second) != chain.end())
            break;
        chain.push_back(step->second);
    }
    return chain;
}

std::string_view InstructionFileSet::categoryName(InstructionFileTier tier) noexcept
{
    return tierOf(tier).categoryName;
}

std::vector<LocalCategoryEstimate> InstructionFileSet::localCategories() const
{
    std::vector<LocalCategoryEstimate> categories;
    for (const InstructionFileTier tier : InstructionFileTier::all) {
        const std::int64_t tokens = tokensOf(files(tier));
        if (tokens >= 1)
            categories.push_back({.name = std::string(categoryName(tier)),
                                  .tokens = tokens,
                                  .matchTerms = matchTerms(tier)});
    }
    return categories;
}

} // namespace Loadwick
