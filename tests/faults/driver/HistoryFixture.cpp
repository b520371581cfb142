#include "faults/driver/HistoryFixture.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "history/ScanHistoryFile.h"
#include "support/RecordedScanBuilder.h"

namespace Faults {

namespace {

using Loadwick::ScanHistoryFile;

void writeFile(const std::filesystem::path &path, const std::string &bytes)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

/// Only a permanent failure to read the old file (not a transient shortage) permits replacing it by
/// one with only the new scan.
bool mayLoseOldScans(const std::optional<Fault> &fault)
{
    if (!fault || fault->isTransient())
        return false;
    return fault->call == Call::read || fault->call == Call::open || fault->call == Call::stat ||
           fault->call == Call::fstat;
}

} // namespace

Loadwick::RecordedScan sampleScan(int number)
{
    constexpr int base = 1'700'000'000;
    return Loadwick::RecordedScanBuilder()
        .named("webshop")
        .in("/home/someone/src/webshop")
        .at(base + number)
        .ofTotal(27'654 + number)
        .withCategory("System prompt", 14'210)
        .withCategory("Memory files", 812)
        .build();
}

HistoryFixture::HistoryFixture(const std::filesystem::path &home, Start start)
    : m_path(home / relativePath)
{
    if (start == Start::nothing)
        return;
    m_scans = {sampleScan(1), sampleScan(2), sampleScan(3)};
    m_oldBytes = ScanHistoryFile{.version = 1, .scans = m_scans}.encoded();
    writeFile(m_path, *m_oldBytes);
    if (start == Start::threeScansAndRemains)
        writeFile(remains(), "{");
}

std::filesystem::path HistoryFixture::remains() const
{
    return folder() / ("." + m_path.filename().string() + ".a1B2c3");
}

std::optional<std::string> HistoryFixture::bytes() const
{
    std::ifstream file(m_path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::optional<std::string> HistoryFixture::leftovers() const
{
    std::error_code ignored;
    for (const auto &entry : std::filesystem::directory_iterator(folder(), ignored))
        if (entry.path() != m_path && entry.path() != remains())
            return "left behind: " + entry.path().filename().string();
    return std::nullopt;
}

std::optional<std::string>
HistoryFixture::problemAfterAppend(const std::optional<Fault> &fault) const
{
    if (auto left = leftovers())
        return left;
    if (isUntouched())
        return fault ? std::nullopt : std::optional<std::string>("nothing was recorded");
    const std::optional<std::string> now = bytes();
    return now ? problemOf(*now, fault) : "the history file is gone";
}

std::optional<std::string> HistoryFixture::problemOf(const std::string &now,
                                                     const std::optional<Fault> &fault) const
{
    const std::optional<ScanHistoryFile> file = ScanHistoryFile::decoded(now);
    if (!file || file->version != 1 || file->encoded() != now)
        return "the history file is torn: " + std::to_string(now.size()) + " bytes";
    if (file->scans.size() == m_scans.size() + 1 &&
        std::equal(m_scans.begin(), m_scans.end(), file->scans.begin()))
        return std::nullopt;
    if (file->scans.size() == 1 && mayLoseOldScans(fault))
        return std::nullopt;
    return "recorded scans are lost: " + std::to_string(file->scans.size()) + " are left";
}

std::optional<std::string>
HistoryFixture::problemAfterClear(const std::optional<Fault> &fault) const
{
    if (auto left = leftovers())
        return left;
    if (!bytes() || (fault && isUntouched()))
        return std::nullopt;
    return "the history file is neither deleted nor as it was";
}

} // namespace Faults
