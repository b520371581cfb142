#include "samples/ThrowAwayHome.h"

#include <chrono>

#include "history/ScanHistoryFile.h"
#include "history/ScanHistoryStore.h"
#include "samples/SampleHistories.h"
#include "samples/SampleRepository.h"

namespace Loadwick {

namespace {

std::chrono::sys_seconds wholeSecondsNow()
{
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

} // namespace

ThrowAwayHome::ThrowAwayHome()
    : m_repository(SampleRepository::writeInto(m_folder.path())), m_standIn(path())
{
    m_standIn.install();
    m_standIn.play({.outcome = "transcript", .seconds = "3", .onlyBelow = path()});
    const auto scans = SampleHistories::ofTenWeeks(path() / "Projects", wholeSecondsNow());
    const ScanHistoryFile file{.version = ScanHistoryStore::schemaVersion, .scans = scans};
    writeFile(historyFolder() / ScanHistoryStore::fileName, file.encoded());
    for (const RecordedScan &scan : scans)
        SampleRepository::writeSmallInto(scan.repositoryPath);
}

std::filesystem::path ThrowAwayHome::historyFolder() const
{
    return path() / ".local/share/Loadwick";
}

} // namespace Loadwick
