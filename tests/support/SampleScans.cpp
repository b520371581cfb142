#include "support/SampleScans.h"

#include <utility>

#include "report/ScanReportBuilder.h"
#include "support/SampleFiles.h"

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

std::string numbered(const char *what, std::int64_t number)
{
    return std::string(what) + " " + std::to_string(number);
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
            .files = SampleFiles::few("/home/someone/projects/field-notes")};
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
            .files = SampleFiles::some("/home/someone/projects/harbor-api")};
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
            .files = SampleFiles::many("/home/someone/projects/paper-boats")};
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
        .files = SampleFiles::some("/home/someone/projects/orchard-web")};
}

SampleScan notSelfReported()
{
    return {.name = "not-self-reported",
            .repositoryPath = "/home/someone/projects/harbor-api",
            .probe = session(36'905, {}),
            .files = SampleFiles::some("/home/someone/projects/harbor-api")};
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
        slabs.push_back({numbered("Category", number), 1 + number * 7919 % 997});
    return {.name = "of-size",
            .repositoryPath = repository,
            .probe = session(9'000'000, std::move(slabs)),
            .files = SampleFiles::numbered(repository, fileCount)};
}

} // namespace SampleScans
} // namespace Loadwick
