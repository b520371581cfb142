#include "report/InstructionFileSet.h"

#include "report/ScanReport.h"
#include "text/CheckedSum.h"

namespace Loadwick {

namespace {

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

std::int64_t tokensOf(const std::vector<InstructionFileEstimate> &files)
{
    std::int64_t tokens = 0;
    for (const InstructionFileEstimate &file : files)
        tokens = checkedSum(tokens, file.estimatedTokens);
    return tokens;
}

} // namespace

const InstructionFileSet InstructionFileSet::empty{};

const std::vector<InstructionFileEstimate> &
InstructionFileSet::files(InstructionFileTier tier) const
{
    switch (tier) {
    case InstructionFileTier::repository:
        return repositoryFiles;
    case InstructionFileTier::inherited:
        return inheritedFiles;
    case InstructionFileTier::personal:
        break;
    }
    return personalFiles;
}

std::vector<InstructionFileEstimate> InstructionFileSet::allFiles() const
{
    std::vector<InstructionFileEstimate> all;
    for (const InstructionFileTier tier : InstructionFileTier::all)
        all.insert(all.end(), files(tier).begin(), files(tier).end());
    return all;
}

std::string_view InstructionFileSet::categoryName(InstructionFileTier tier) noexcept
{
    switch (tier) {
    case InstructionFileTier::repository:
        return ScanReport::repositoryCategoryName;
    case InstructionFileTier::inherited:
        return ScanReport::inheritedCategoryName;
    case InstructionFileTier::personal:
        break;
    }
    return ScanReport::personalCategoryName;
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
