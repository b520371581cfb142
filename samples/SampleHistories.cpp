#include "samples/SampleHistories.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "text/PathText.h"

namespace Loadwick::SampleHistories {

namespace {

constexpr std::chrono::sys_seconds lastScan(std::chrono::seconds(1'772'615'727)); // 4 March 2026
constexpr std::chrono::seconds timeBetweenScans(31 * 3'600 + 17 * 60);

constexpr std::array<std::string_view, 8> names{
    "harbor-api",  "field-notes", "paper-boats", "orchard-web",
    "tide-tables", "lamp-room",   "night-ferry", "a-repository-whose-name-is-longer-than-most"};

std::string numbered(std::string_view name, std::int64_t round)
{
    const std::string first(name);
    return round == 0 ? first : first + '-' + std::to_string(round + 1);
}

std::string nameOf(std::int64_t repository)
{
    const auto count = static_cast<std::int64_t>(names.size());
    return numbered(names[static_cast<std::size_t>(repository % count)], repository / count);
}

std::string categoryName(std::int64_t category)
{
    const auto count = static_cast<std::int64_t>(categoryNames.size());
    return numbered(categoryNames[static_cast<std::size_t>(category % count)], category / count);
}

/// Fluctuates around a level specific to the repository, at least 14,000 tokens.
std::int64_t totalOf(std::int64_t repository, std::int64_t scan)
{
    const std::int64_t level = 18'000 + repository * 13'700 % 74'000;
    return level + scan * 2'917 % 11'000 - 4'000;
}

std::int64_t tokensOf(std::int64_t total, std::int64_t category, std::int64_t categoryCount)
{
    return 2 * total * (categoryCount - category) / (categoryCount * (categoryCount + 1));
}

std::vector<RecordedCategory> categoriesOf(std::int64_t total, std::int64_t count)
{
    std::vector<RecordedCategory> list;
    for (std::int64_t category = 0; category < count; ++category)
        list.push_back({categoryName(category), tokensOf(total, category, count)});
    return list;
}

/// A scan `age` scans before the last one.
RecordedScan scanOf(std::int64_t repository, std::int64_t total, std::int64_t age)
{
    const std::string name = nameOf(repository);
    return {.id = Uuid::random(),
            .repositoryName = name,
            .repositoryPath = "/home/someone/projects/" + name,
            .date = lastScan - age * timeBetweenScans,
            .total = total,
            .categories = {}};
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
        scans.push_back(scanOf(0, total, count - 1 - scan));
        scans.back().categories = categoriesOf(total, 7);
    }
    return scans;
}

/// A repository before and after someone cleaned up: categories that came, went, grew, shrank, and
/// did not change, and one that was at first counted only beyond its local estimate.
std::vector<RecordedScan> cleanedUp()
{
    RecordedScan before = scanOf(0, 42'318, 1);
    before.categories = {{"system tools", 16'420},
                         {"mcp tools", 8'240},
                         {"Repository instructions", 5'870},
                         {"Unattributed", 3'770},
                         {"system prompt", 3'187},
                         {"memory files (beyond local estimate)", 2'105},
                         {"custom agents", 1'260},
                         {"Personal instructions", 980},
                         {"messages", 486}};
    RecordedScan after = scanOf(0, 36'204, 0);
    after.categories = {{"system tools", 16'420},
                        {"Unattributed", 6'041},
                        {"Repository instructions", 3'410},
                        {"system prompt", 3'187},
                        {"memory files", 2'480},
                        {"skills", 1'935},
                        {"custom agents", 1'260},
                        {"Personal instructions", 980},
                        {"messages", 491}};
    return {before, after};
}

struct Measurement
{
    std::string_view repository;
    int daysAgo;
    std::int64_t total;
};

constexpr std::array<Measurement, 19> measurements{{
    {"harbor-api", 68, 36'914},  {"field-notes", 66, 24'870}, {"paper-boats", 61, 71'260},
    {"harbor-api", 54, 38'402},  {"orchard-web", 52, 55'119}, {"paper-boats", 47, 78'904},
    {"field-notes", 45, 25'216}, {"tide-tables", 41, 28'733}, {"harbor-api", 38, 45'870},
    {"orchard-web", 36, 52'044}, {"paper-boats", 30, 92'318}, {"tide-tables", 27, 28'733},
    {"field-notes", 24, 26'981}, {"harbor-api", 19, 44'206},  {"orchard-web", 17, 48'377},
    {"paper-boats", 12, 64'512}, {"tide-tables", 9, 31'090},  {"harbor-api", 5, 43'655},
    {"orchard-web", 3, 46'902},
}};

struct Share
{
    std::string_view name;
    std::int64_t thousandths; ///< of the total
};

constexpr std::array<Share, 7> shares{{
    {"system tools", 386},
    {"mcp tools", 181},
    {"Repository instructions", 94},
    {"system prompt", 76},
    {"Personal instructions", 38},
    {"custom agents", 29},
    {"Inherited project instructions", 11},
}};

/// The total split by those shares, the rest unattributed, in a report's order.
std::vector<RecordedCategory> measuredCategories(std::int64_t total)
{
    std::vector<RecordedCategory> list;
    std::int64_t left = total;
    for (const Share &share : shares) {
        const std::int64_t tokens = total * share.thousandths / 1000;
        list.push_back({std::string(share.name), tokens});
        left -= tokens;
    }
    list.push_back({"Unattributed", left});
    std::stable_sort(list.begin(), list.end(),
                     [](const auto &a, const auto &b) { return a.tokens > b.tokens; });
    return list;
}

} // namespace

std::vector<RecordedScan> ofSize(std::int64_t scanCount, std::int64_t repositoryCount,
                                 std::int64_t categoryCount)
{
    std::vector<RecordedScan> scans;
    for (std::int64_t scan = 0; scan < scanCount; ++scan) {
        const std::int64_t repository = scan % repositoryCount;
        const std::int64_t total = totalOf(repository, scan);
        scans.push_back(scanOf(repository, total, scanCount - 1 - scan));
        scans.back().categories = categoriesOf(total, categoryCount);
    }
    return scans;
}

std::vector<SampleHistory> all()
{
    return {{.name = "none", .scans = {}},
            {.name = "one-scan", .scans = ofSize(1, 1, 7)},
            {.name = "two-equal-scans", .scans = {scanOf(0, 42'318, 1), scanOf(0, 42'318, 0)}},
            {.name = "two-repositories", .scans = ofSize(7, 2, 6)},
            {.name = "30-scans", .scans = growing()},
            {.name = "5-repositories", .scans = ofSize(31, 5, 7)},
            {.name = "30-repositories", .scans = ofSize(200, 30, 9)},
            {.name = "clean-up", .scans = cleanedUp()}};
}

std::vector<RecordedScan> ofTenWeeks(const std::filesystem::path &projects,
                                     std::chrono::sys_seconds now)
{
    std::vector<RecordedScan> scans;
    for (const Measurement &measurement : measurements)
        scans.push_back({.id = Uuid::random(),
                         .repositoryName = std::string(measurement.repository),
                         .repositoryPath = pathText(projects / measurement.repository),
                         .date = now - std::chrono::hours(24 * measurement.daysAgo),
                         .total = measurement.total,
                         .categories = measuredCategories(measurement.total)});
    return scans;
}

} // namespace Loadwick::SampleHistories
