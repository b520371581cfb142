#include "probe/TranscriptLocator.h"

#include <chrono>
#include <deque>

#include "text/PathText.h"
#include "text/UnicodeText.h"

namespace Loadwick::TranscriptLocator {

namespace {

namespace fs = std::filesystem;

using EntryKind = FileSystem::EntryKind;
using Walk = FileSystem::Walk;

bool isPlainFileName(std::string_view name) noexcept
{
    constexpr std::string_view separators("/\0", 2);
    return !name.empty() && name.front() != '.' &&
           name.find_first_of(separators) == std::string_view::npos;
}

/// A walk through the folders below a root. Pending folders are in a list, so that depth needs no
/// stack. A folder that may hold the file comes next; one that holds neither it nor folders is not
/// listed.
class Search
{
public:
    Search(const FileSystem &fileSystem, std::string fileName, const fs::path &root)
        : m_fileSystem(fileSystem), m_fileName(std::move(fileName)), m_pending{root}
    {}

    /// A file of the given name, else another entry of that name, else nothing.
    std::optional<fs::path> runUntil(Deadline deadline)
    {
        while (!m_file && !m_pending.empty() && std::chrono::steady_clock::now() < deadline) {
            const fs::path folder = std::move(m_pending.front());
            m_pending.pop_front();
            m_fileSystem.list(folder, [&](const std::string &name, EntryKind kind) {
                return visit(folder, name, kind);
            });
        }
        return m_file ? m_file : m_otherEntry;
    }

private:
    Walk visit(const fs::path &folder, const std::string &name, EntryKind kind)
    {
        if (name.starts_with('.'))
            return Walk::proceed;
        if (kind == EntryKind::folder)
            addPending(folder / name);
        if (name != m_fileName)
            return Walk::proceed;
        if (kind == EntryKind::file) {
            m_file = folder / name;
            return Walk::stop;
        }
        if (!m_otherEntry)
            m_otherEntry = folder / name;
        return Walk::proceed;
    }

    void addPending(fs::path folder)
    {
        if (m_fileSystem.mayHold(folder / m_fileName))
            m_pending.push_front(std::move(folder));
        else if (m_fileSystem.mayHoldFolders(folder))
            m_pending.push_back(std::move(folder));
    }

    const FileSystem &m_fileSystem;
    std::string m_fileName;
    std::deque<fs::path> m_pending;
    std::optional<fs::path> m_file;
    std::optional<fs::path> m_otherEntry;
};

} // namespace

std::filesystem::path defaultProjectsRoot(const std::string &home, const Environment &environment)
{
    const auto given = environment.find(std::string(configDirEnvironmentKey));
    const auto configured = given == environment.end()
                                ? std::nullopt
                                : normalizedConfigDir(given->second, currentFolder());
    return fs::path(configured.value_or(home + "/.claude")) / "projects";
}

std::optional<std::string> normalizedConfigDir(std::string_view value,
                                               const std::filesystem::path &workingDirectory)
{
    const std::string_view given = trimmed(value);
    if (given.empty())
        return std::nullopt;
    std::string folder(given);
    if (given == "~" || given.starts_with("~/"))
        folder = homeFolder(currentEnvironment()) + std::string(given.substr(1));
    return standardizedPath(workingDirectory / folder).native();
}

std::optional<std::filesystem::path> find(std::string_view sessionID,
                                          const std::filesystem::path &root,
                                          const FileSystem &fileSystem, Deadline deadline)
{
    if (!isPlainFileName(sessionID))
        return std::nullopt;
    return Search(fileSystem, std::string(sessionID) + ".jsonl", root).runUntil(deadline);
}

} // namespace Loadwick::TranscriptLocator
