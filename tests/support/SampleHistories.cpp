#include "support/SampleHistories.h"

#include <array>
#include <string_view>
#include <utility>

#include "support/RecordedScanBuilder.h"

namespace Loadwick::SampleHistories {

namespace {

constexpr std::int64_t lastScan = 1'772'615'727; // 4 March 2026, in seconds since 1970
constexpr std::int64_t secondsBetweenScans = 31 * 3'600 + 17 * 60;

constexpr std::array<std::string_view, 8> names{
    "harbor-api",  "field-notes", "paper-boats", "orchard-web",
    "tide-tables", "lamp-room",   "night-ferry", "a-repository-whose-name-is-longer-than-most"};

constexpr std::array<std::string_view, 9> categories{"System tools",
                                                     "MCP tools",
                                                     "Repository instructions",
                                                     "System prompt",
                                                     "Custom agents",
                                                     "Personal instructions",
                                                     "Inherited project instructions",
                                                     "Unattributed",
                                                     "Messages"};

std::string numbered(std::string_view name, std::int64_t round)
{
    return std::string(name) + (round == 0 ? "" : "-" + std::to_string(round + 1));
}

std::string nameOf(std::int64_t repository)
{
    const auto count = static_cast<std::int64_t>(names.size());
    return numbered(names[static_cast<std::size_t>(repository % count)], repository / count);
}

std::string categoryName(std::int64_t category)
{
    const auto count = static_cast<std::int64_t>(categories.size());
    return numbered(categories[static_cast<std::size_t>(category % count)], category / count);
}

/// Wanders about a level of the repository's own, from 14,000 tokens up.
std::int64_t totalOf(std::int64_t repository, std::int64_t scan)
{
    const std::int64_t level = 18'000 + repository * 13'700 % 74'000;
    return level + scan * 2'917 % 11'000 - 4'000;
}

std::int64_t tokensOf(std::int64_t total, std::int64_t category, std::int64_t categoryCount)
{
    return 2 * total * (categoryCount - category) / (categoryCount * (categoryCount + 1));
}

RecordedScanBuilder scanOf(std::int64_t repository, std::int64_t total)
{
    const std::string name = nameOf(repository);
    return RecordedScanBuilder().named(name).in("/home/someone/projects/" + name).ofTotal(total);
}

RecordedScan scanWithCategories(RecordedScanBuilder builder, std::int64_t total,
                                std::int64_t categoryCount)
{
    for (std::int64_t category = 0; category < categoryCount; ++category)
        builder.withCategory(categoryName(category), tokensOf(total, category, categoryCount));
    return builder.build();
}

/// 30 scans of a repository that grows into the heavy band, is cleaned up, and grows again.
std::vector<RecordedScan> growing()
{
    constexpr std::int64_t count = 30;
    constexpr std::int64_t cleanUp = 20;
    std::vector<RecordedScan> scans;
    for (std::int64_t scan = 0; scan < count; ++scan) {
        const std::int64_t total =
            24'000 + scan * 700 + scan * 2'917 % 1'900 - (scan < cleanUp ? 0 : 13'000);
        RecordedScanBuilder builder = scanOf(0, total);
        builder.at(lastScan - (count - 1 - scan) * secondsBetweenScans);
        scans.push_back(scanWithCategories(std::move(builder), total, 7));
    }
    return scans;
}

std::vector<RecordedScan> twoEqual()
{
    return {scanOf(0, 42'318).at(lastScan - 86'400).build(),
            scanOf(0, 42'318).at(lastScan).build()};
}

} // namespace

std::vector<RecordedScan> ofSize(std::int64_t scanCount, std::int64_t repositoryCount,
                                 std::int64_t categoryCount)
{
    std::vector<RecordedScan> scans;
    for (std::int64_t scan = 0; scan < scanCount; ++scan) {
        const std::int64_t repository = scan % repositoryCount;
        const std::int64_t total = totalOf(repository, scan);
        RecordedScanBuilder builder = scanOf(repository, total);
        builder.at(lastScan - (scanCount - 1 - scan) * secondsBetweenScans);
        scans.push_back(scanWithCategories(std::move(builder), total, categoryCount));
    }
    return scans;
}

std::vector<SampleHistory> all()
{
    return {{.name = "none", .scans = {}},
            {.name = "one-scan", .scans = ofSize(1, 1, 7)},
            {.name = "two-equal-scans", .scans = twoEqual()},
            {.name = "two-repositories", .scans = ofSize(7, 2, 6)},
            {.name = "30-scans", .scans = growing()},
            {.name = "5-repositories", .scans = ofSize(31, 5, 7)},
            {.name = "30-repositories", .scans = ofSize(200, 30, 9)}};
}

} // namespace Loadwick::SampleHistories
