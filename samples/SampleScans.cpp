#include "samples/SampleScans.h"

#include <utility>

#include "report/RepoSelection.h"
#include "report/ScanReport.h"

namespace Loadwick {

namespace {

using Slabs = std::vector<SelfReportedSlab>;

ProbeResult session(std::int64_t total, Slabs slabs)
{
    return {.sessionID = "7c1f0d52-3f0e-4c6b-9a6e-5b0d2f8e4a17",
            .authoritativeTotal = total,
            .totalSource = TotalSource::transcript,
            .selfReportedSlabs = std::move(slabs),
            .duration = 12.4,
            .resolvedCLIPath = "/home/someone/.local/bin/claude"};
}

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

/// Three files.
InstructionFileSet fewFiles(const std::string &repository)
{
    return {.repositoryFiles = below(repository, {{"CLAUDE.md", 5'218}}),
            .inheritedFiles = {},
            .personalFiles =
                below(personalFolder, {{"CLAUDE.md", 2'410}, {"rules/style.md", 1'302}}),
            .unreadablePaths = {}};
}

/// Eleven files in all tiers, three of them imported, and one that is unreadable.
InstructionFileSet someFiles(const std::string &repository)
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
            .unreadablePaths = {repository + "/.claude/rules/secrets.md"},
            .importers = {
                {repository + "/.claude/rules/api.md", repository + "/CLAUDE.md"},
                {repository + "/docs/agents/glossary.md", repository + "/.claude/rules/api.md"},
                {personalFolder + "/rules/review.md", personalFolder + "/CLAUDE.md"}}};
}

/// 31 files of very different sizes, one of them deep down. One path of each tier is unreadable,
/// and one path is both estimated and unreadable.
InstructionFileSet manyFiles(const std::string &repository)
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

/// `count` files, spread evenly over the tiers.
InstructionFileSet numberedFiles(const std::string &repository, std::int64_t count)
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

} // namespace

ScanReport SampleScan::report() const
{
    return ScanReportBuilder::build(RepoSelection::fromUrl(repositoryPath), probe, files);
}

namespace SampleScans {

SampleScan lean()
{
    return {.name = "lean",
            .repositoryPath = "/home/someone/projects/field-notes",
            .probe = session(21'480, {{"System prompt", 3'187},
                                      {"System tools", 11'940},
                                      {"Memory files", 2'300},
                                      {"Messages", 486}}),
            .files = fewFiles("/home/someone/projects/field-notes")};
}

SampleScan heavy()
{
    return {.name = "heavy",
            .repositoryPath = "/home/someone/projects/harbor-api",
            .probe = session(42'318, {{"System prompt", 3'187},
                                      {"System tools", 16'420},
                                      {"MCP tools", 8'240},
                                      {"Memory files", 4'105},
                                      {"Custom agents", 1'260},
                                      {"Messages", 486}}),
            .files = someFiles("/home/someone/projects/harbor-api")};
}

SampleScan excessive()
{
    return {.name = "excessive",
            .repositoryPath = "/home/someone/projects/paper-boats",
            .probe = session(142'318, {{"System prompt", 3'187},
                                       {"System tools", 16'420},
                                       {"MCP tools: issue-tracker", 24'916},
                                       {"MCP tools: browser", 18'204},
                                       {"MCP tools: design-files", 13'377},
                                       {"MCP tools: database", 6'040},
                                       {"Skills", 9'812},
                                       {"Custom agents", 7'260},
                                       {"Slash commands", 2'904},
                                       {"Output style", 611},
                                       {"Memory files", 21'150},
                                       {"Messages", 486}}),
            .files = manyFiles("/home/someone/projects/paper-boats")};
}

SampleScan zero()
{
    return {.name = "zero",
            .repositoryPath = "/home/someone/projects/tide-tables",
            .probe = session(0, {{"System prompt", 0}, {"System tools", 0}}),
            .files = InstructionFileSet::empty};
}

SampleScan overAttributed()
{
    return {
        .name = "over-attributed",
        .repositoryPath = "/home/someone/projects/orchard-web",
        .probe = session(
            18'200, {{"System prompt", 3'187}, {"System tools", 9'420}, {"Custom agents", 1'260}}),
        .files = someFiles("/home/someone/projects/orchard-web")};
}

SampleScan notSelfReported()
{
    return {.name = "not-self-reported",
            .repositoryPath = "/home/someone/projects/harbor-api",
            .probe = session(36'905, {}),
            .files = someFiles("/home/someone/projects/harbor-api")};
}

std::vector<SampleScan> all()
{
    return {lean(), heavy(), excessive(), zero(), overAttributed(), notSelfReported()};
}

SampleScan ofSize(std::int64_t categoryCount, std::int64_t fileCount)
{
    const std::string repository = "/home/someone/projects/everything";
    Slabs slabs;
    for (std::int64_t number = 1; number <= categoryCount; ++number)
        slabs.push_back({"Category " + std::to_string(number), 1 + number * 7919 % 997});
    return {.name = "of-size",
            .repositoryPath = repository,
            .probe = session(9'000'000, std::move(slabs)),
            .files = numberedFiles(repository, fileCount)};
}

} // namespace SampleScans
} // namespace Loadwick
