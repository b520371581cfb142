#include "demo/SampleHistory.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "demo/SampleFile.h"
#include "history/ScanHistoryFile.h"
#include "history/ScanHistoryStore.h"
#include "text/PathText.h"

namespace Loadwick::SampleHistory {

namespace {

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

struct Part
{
    std::string_view name;
    std::int64_t thousandths; ///< of the total
};

constexpr std::array<Part, 7> parts{{
    {"system tools", 386},
    {"mcp tools", 181},
    {"Repository instructions", 94},
    {"system prompt", 76},
    {"Personal instructions", 38},
    {"custom agents", 29},
    {"Inherited project instructions", 11},
}};

/// The parts' share of the total, what they leave being unattributed, as a report orders them.
std::vector<RecordedCategory> categoriesOf(std::int64_t total)
{
    std::vector<RecordedCategory> categories;
    std::int64_t left = total;
    for (const Part &part : parts) {
        const std::int64_t tokens = total * part.thousandths / 1000;
        categories.push_back({std::string(part.name), tokens});
        left -= tokens;
    }
    categories.push_back({"Unattributed", left});
    std::stable_sort(categories.begin(), categories.end(),
                     [](const auto &a, const auto &b) { return a.tokens > b.tokens; });
    return categories;
}

} // namespace

std::vector<RecordedScan> scans(const std::filesystem::path &projects, std::chrono::sys_seconds now)
{
    std::vector<RecordedScan> scans;
    for (const Measurement &measurement : measurements)
        scans.push_back({.id = Uuid::random(),
                         .repositoryName = std::string(measurement.repository),
                         .repositoryPath = pathText(projects / measurement.repository),
                         .date = now - std::chrono::hours(24 * measurement.daysAgo),
                         .total = measurement.total,
                         .categories = categoriesOf(measurement.total)});
    return scans;
}

void writeInto(const std::filesystem::path &directory, const std::vector<RecordedScan> &scans)
{
    const ScanHistoryFile file{.version = ScanHistoryStore::schemaVersion, .scans = scans};
    writeSampleFile(directory / ScanHistoryStore::fileName, file.encoded());
}

} // namespace Loadwick::SampleHistory
