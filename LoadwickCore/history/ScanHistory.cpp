#include "history/ScanHistory.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <tuple>

namespace Loadwick::ScanHistory {

std::vector<RecordedScan> scans(std::span<const RecordedScan> scans,
                                std::string_view repositoryPath)
{
    std::vector<RecordedScan> found;
    std::copy_if(scans.begin(), scans.end(), std::back_inserter(found),
                 [repositoryPath](const RecordedScan &scan) {
                     return scan.repositoryPath == repositoryPath;
                 });
    return found;
}

std::optional<std::string> mostRecentRepositoryPath(std::span<const RecordedScan> scans)
{
    if (scans.empty())
        return std::nullopt;
    return scans.back().repositoryPath;
}

std::vector<RecordedScan> latestPerRepository(std::span<const RecordedScan> scans)
{
    std::map<std::string_view, const RecordedScan *> latest;
    for (const RecordedScan &scan : scans) {
        const auto [kept, isNew] = latest.emplace(scan.repositoryPath, &scan);
        if (!isNew && scan.date > kept->second->date)
            kept->second = &scan;
    }
    std::vector<RecordedScan> result;
    result.reserve(latest.size());
    for (const auto &[path, scan] : latest)
        result.push_back(*scan);
    std::sort(result.begin(), result.end(),
              [](const RecordedScan &left, const RecordedScan &right) {
                  return std::tie(left.repositoryName, left.repositoryPath) <
                         std::tie(right.repositoryName, right.repositoryPath);
              });
    return result;
}

} // namespace Loadwick::ScanHistory
