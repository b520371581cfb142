#include "history/ScanHistoryStore.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <exception>
#include <optional>
#include <string>
#include <thread>
#include <tuple>
#include <utility>

#include <sys/stat.h>

#include "history/ScanHistory.h"
#include "history/ScanHistoryFile.h"
#include "posix/AtomicFile.h"
#include "posix/RegularFile.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

constexpr int attempts = 4;
constexpr std::chrono::milliseconds pause(1);

bool isTransient(int errorNumber)
{
    constexpr std::array transient = {EINTR, EAGAIN, EMFILE, ENFILE, ENOMEM};
    return std::find(transient.begin(), transient.end(), errorNumber) != transient.end();
}

/// Reads at most one byte beyond the limit, which shows that a file grew too long.
std::optional<std::string> bytesOf(const fs::path &path, RegularFile::Failure &failure)
{
    std::optional<RegularFile> file = RegularFile::open(path, &failure);
    if (!file || file->size() > static_cast<std::int64_t>(ScanHistoryStore::maximumBytes))
        return std::nullopt;
    return file->readUpTo(ScanHistoryStore::maximumBytes + 1, &failure);
}

std::vector<RecordedScan> scansIn(const std::string &bytes)
{
    // unreachable: the file would have to grow beyond the limit while it is read
    if (bytes.size() > ScanHistoryStore::maximumBytes)
        return {};
    std::optional<ScanHistoryFile> file = ScanHistoryFile::decoded(bytes);
    if (!file || file->version != ScanHistoryStore::schemaVersion)
        return {};
    return std::move(file->scans);
}

/// The next scan overwrites a history that cannot be read, so a transient shortage must not look
/// like one. Nothing when the shortage outlasts every attempt. Throws `std::bad_alloc`.
std::optional<std::vector<RecordedScan>> readScansWithRetry(const fs::path &path)
{
    for (int attempt = 1; attempt <= attempts; ++attempt) {
        RegularFile::Failure failure;
        if (const std::optional<std::string> bytes = bytesOf(path, failure))
            return scansIn(*bytes);
        if (!isTransient(failure.errorNumber))
            return std::vector<RecordedScan>();
        std::this_thread::sleep_for(pause);
    }
    return std::nullopt;
}

void order(std::vector<RecordedScan> &scans)
{
    const auto key = [](const RecordedScan &scan) {
        return std::tie(scan.date, scan.repositoryName);
    };
    std::stable_sort(scans.begin(), scans.end(),
                     [key](const RecordedScan &left, const RecordedScan &right) {
                         return key(left) < key(right);
                     });
}

/// Lets `scans` share the memory of those that are known.
void shareWith(std::vector<RecordedScan> &scans, const std::vector<RecordedScan> &known)
{
    for (RecordedScan &scan : scans) {
        const auto same = std::find_if(known.begin(), known.end(),
                                       [&](const auto &other) { return other.id == scan.id; });
        if (same != known.end() && same->categories == scan.categories)
            scan.categories = same->categories;
    }
}

void keepNewest(std::vector<RecordedScan> &scans)
{
    if (scans.size() > ScanHistoryStore::maximumScans)
        scans.erase(scans.begin(),
                    scans.end() - static_cast<std::ptrdiff_t>(ScanHistoryStore::maximumScans));
}

/// Creates what is missing of a path; without it, writing the file fails. The standard library
/// looks at each folder first, and gives up where a signal interrupts that.
void createFolders(const fs::path &path)
{
    fs::path folder;
    for (const fs::path &part : path) {
        folder /= part;
        ::mkdir(folder.c_str(), 0777); // a folder that exists stays as it is
    }
}

} // namespace

ScanHistoryStore::ScanHistoryStore(fs::path directory)
    : m_directory(std::move(directory)), m_fileURL(m_directory / fileName)
{}

fs::path ScanHistoryStore::defaultDirectory(const Environment &environment)
{
#if defined(__APPLE__)
    return fs::path(homeFolder(environment)) / "Library/Application Support" / directoryName;
#else
    const auto found = environment.find("XDG_DATA_HOME");
    if (found != environment.end() && fs::path(found->second).is_absolute())
        return fs::path(found->second) / directoryName;
    return fs::path(homeFolder(environment)) / ".local/share" / directoryName;
#endif
}

std::vector<RecordedScan> ScanHistoryStore::load() const
{
    return recordedScans().value_or(std::vector<RecordedScan>());
}

std::vector<RecordedScan> ScanHistoryStore::append(const RecordedScan &scan,
                                                   const std::vector<RecordedScan> &known)
{
    std::optional<std::vector<RecordedScan>> recorded = recordedScans();
    const bool isRead = recorded.has_value();
    ScanHistoryFile file{.version = schemaVersion, .scans = isRead ? std::move(*recorded) : known};
    shareWith(file.scans, known);
    file.scans.push_back(scan);
    order(file.scans);
    keepNewest(file.scans);
    if (isRead)
        write(file);
    return std::move(file.scans);
}

std::optional<std::vector<RecordedScan>> ScanHistoryStore::recordedScans() const
{
    try {
        std::optional<std::vector<RecordedScan>> scans = readScansWithRetry(m_fileURL);
        if (!scans)
            return std::nullopt;
        order(*scans);
        return ScanHistory::summable(std::move(*scans));
    } catch (const std::exception &) {
        return std::nullopt; // no memory for them
    }
}

/// Leaves out of `file` what is not written.
void ScanHistoryStore::write(ScanHistoryFile &file) const
{
    try {
        createFolders(m_directory);
        static_cast<void>(AtomicFile::replace(m_fileURL, file.encodedWithin(maximumBytes)));
    } catch (const std::exception &) {
        // no memory for it: like every failed write, it leaves the old file
    }
}

void ScanHistoryStore::clear()
{
    try {
        AtomicFile::remove(m_fileURL);
    } catch (const std::exception &) {
        // no memory for its path: like one that cannot be deleted, the file stays
    }
}

} // namespace Loadwick
