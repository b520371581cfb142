#include "support/SampleFiles.h"

#include <utility>
#include <vector>

namespace Loadwick::SampleFiles {

namespace {

struct Named
{
    std::string name; ///< relative to the tier's folder
    std::int64_t byteCount;
};

const std::string personalFolder = "/home/someone/.claude";
const std::string inheritedFolder = "/home/someone/projects";

std::vector<InstructionFileEstimate> below(const std::string &folder,
                                           const std::vector<Named> &files)
{
    std::vector<InstructionFileEstimate> estimates;
    for (const Named &file : files)
        estimates.push_back(
            InstructionFileEstimate::fromPath(folder + "/" + file.name, file.byteCount));
    return estimates;
}

std::vector<InstructionFileEstimate> repositoryFilesOfMany(const std::string &repository)
{
    return below(repository,
                 {{"CLAUDE.md", 31'870},
                  {"CLAUDE.local.md", 1'204},
                  {".claude/rules/architecture.md", 9'212},
                  {".claude/rules/code-review.md", 6'180},
                  {".claude/rules/database-migrations.md", 5'544},
                  {".claude/rules/error-texts.md", 2'871},
                  {".claude/rules/naming.md", 1'950},
                  {".claude/rules/releases.md", 4'402},
                  {".claude/rules/testing.md", 7'935},
                  {"apps/checkout/CLAUDE.md", 3'310},
                  {"apps/warehouse/CLAUDE.md", 2'068},
                  {"docs/agents/glossary.md", 5'127},
                  {"docs/agents/how-we-write-commit-messages.md", 1'610},
                  {"docs/agents/incident-handbook.md", 11'940},
                  {"packages/design-system/CLAUDE.md", 2'490},
                  {"packages/design-system/src/components/navigation/breadcrumbs/documentation/"
                   "instructions-for-assistants-that-change-the-breadcrumbs.md",
                   1'288},
                  {"packages/payments/CLAUDE.md", 4'020},
                  {"packages/search/CLAUDE.md", 905},
                  {"services/mail/CLAUDE.md", 1},
                  {"services/reports/CLAUDE.md", 0},
                  {"tools/generators/CLAUDE.md", 760}});
}

} // namespace

InstructionFileSet few(const std::string &repository)
{
    return {.repositoryFiles = below(repository, {{"CLAUDE.md", 5'218}}),
            .inheritedFiles = {},
            .personalFiles =
                below(personalFolder, {{"CLAUDE.md", 2'410}, {"rules/style.md", 1'302}}),
            .unreadablePaths = {}};
}

InstructionFileSet some(const std::string &repository)
{
    return {.repositoryFiles = below(repository, {{"CLAUDE.md", 9'840},
                                                  {"CLAUDE.local.md", 612},
                                                  {".claude/rules/api.md", 4'071},
                                                  {".claude/rules/testing.md", 2'935},
                                                  {"docs/agents/glossary.md", 5'127},
                                                  {"services/billing/CLAUDE.md", 1'488}}),
            .inheritedFiles = below(inheritedFolder, {{"CLAUDE.md", 1'804}}),
            .personalFiles = below(personalFolder, {{"CLAUDE.md", 6'240},
                                                    {"rules/commit-messages.md", 1'115},
                                                    {"rules/review.md", 2'380},
                                                    {"rules/style.md", 1'302}}),
            .unreadablePaths = {repository + "/.claude/rules/secrets.md"}};
}

InstructionFileSet many(const std::string &repository)
{
    return {.repositoryFiles = repositoryFilesOfMany(repository),
            .inheritedFiles = below(inheritedFolder, {{"CLAUDE.md", 1'804},
                                                      {".claude/rules/company.md", 8'866},
                                                      {".claude/rules/licences.md", 2'204}}),
            .personalFiles = below(personalFolder, {{"CLAUDE.md", 14'370},
                                                    {"rules/commit-messages.md", 1'115},
                                                    {"rules/dependencies.md", 3'075},
                                                    {"rules/languages/cpp.md", 6'028},
                                                    {"rules/languages/python.md", 4'716},
                                                    {"rules/review.md", 2'380},
                                                    {"rules/style.md", 1'302}}),
            .unreadablePaths = {personalFolder + "/rules/private.md",
                                inheritedFolder + "/.claude/rules/on-a-lost-disk.md",
                                repository + "/.claude/rules/secrets.md",
                                repository + "/CLAUDE.local.md"}};
}

InstructionFileSet numbered(const std::string &repository, std::int64_t count)
{
    const std::vector<std::string> folders{repository, inheritedFolder, personalFolder};
    std::vector<std::vector<Named>> names(folders.size());
    for (std::int64_t number = 0; number < count; ++number)
        names[static_cast<std::size_t>(number) % names.size()].push_back(
            {"rules/part-" + std::to_string(number / 100) + "/rule-" + std::to_string(number) +
                 ".md",
             200 + number * 7919 % 973});
    return {.repositoryFiles = below(folders[0], names[0]),
            .inheritedFiles = below(folders[1], names[1]),
            .personalFiles = below(folders[2], names[2]),
            .unreadablePaths = {}};
}

} // namespace Loadwick::SampleFiles
