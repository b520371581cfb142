#include "demo/ThrowAwayHome.h"

#include <chrono>
#include <cstdlib>
#include <string>

#include "demo/SampleHistory.h"
#include "demo/SampleRepository.h"
#include "text/Fatal.h"

namespace Loadwick {

namespace {

std::filesystem::path newFolder()
{
    std::string pattern =
        (std::filesystem::temp_directory_path() / "loadwick-demo-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        fatalError("no temporary folder for the throw-away home");
    return std::filesystem::canonical(pattern);
}

std::chrono::sys_seconds wholeSecondsNow()
{
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

} // namespace

ThrowAwayHome::ThrowAwayHome()
    : m_path(newFolder()), m_repository(SampleRepository::writeInto(m_path)), m_standIn(m_path)
{
    m_standIn.install();
    m_standIn.play({.outcome = "transcript", .seconds = "3", .onlyBelow = m_path});
    const auto scans = SampleHistory::scans(m_path / "Projects", wholeSecondsNow());
    SampleHistory::writeInto(historyFolder(), scans);
    for (const RecordedScan &scan : scans)
        SampleRepository::writeSmallInto(scan.repositoryPath);
}

ThrowAwayHome::~ThrowAwayHome()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::filesystem::path ThrowAwayHome::historyFolder() const
{
    return m_path / ".local/share/Loadwick";
}

} // namespace Loadwick
