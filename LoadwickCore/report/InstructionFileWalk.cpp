#include "report/InstructionFileWalk.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "posix/RegularFile.h"
#include "report/InstructionImports.h"
#include "text/PathText.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// Files of up to this size are searched for imports at the last depth too: many are reached by a
/// shorter way later, and opening one again takes longer than searching it.
constexpr std::int64_t smallSize = 16'384;

/// How many bytes to read: the file's own size where it states one, so that no read has to find the
/// end, but no more than it takes to see that it is too long.
std::size_t readLimit(const RegularFile &file)
{
    constexpr std::int64_t limit = InstructionFileScanner::importSearchLimit + 1;
    return static_cast<std::size_t>(file.size() > 0 ? std::min(file.size(), limit) : limit);
}

/// Whether a non-empty path needs no standardizing below a standardized folder. Conservative: false
/// for some that need none.
bool isPlain(std::string_view path)
{
    return path.front() != '/' && path.front() != '.' && path.back() != '/' &&
           path.find("//") == std::string_view::npos && path.find("/.") == std::string_view::npos;
}

/// The path up to and including its last slash.
std::string_view folderPart(std::string_view path)
{
    return path.substr(0, path.rfind('/') + 1);
}

bool isUnderOrAt(std::string_view path, const std::string &folder)
{
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// Whether a file that could not be opened exists all the same.
bool isUnreadable(const std::string &path, const RegularFile::Failure &failure)
{
    if (failure.isDenied())
        return true;
    std::error_code ignored;
    return failure.errorNumber != 0 && std::filesystem::is_regular_file(path, ignored);
}

/// Each token once, in order: a repeated one leads to the same file. None for a file that is too
/// long to search or is not UTF-8.
std::vector<std::string> importTokensOf(const std::string &content)
{
    std::vector<std::string> tokens;
    if (static_cast<std::int64_t>(content.size()) > InstructionFileScanner::importSearchLimit ||
        !isUtf8(content))
        return tokens;
    std::unordered_set<std::string_view> known;
    for (const std::string_view token : InstructionImports::tokensIn(content))
        if (known.insert(token).second)
            tokens.emplace_back(token);
    return tokens;
}

} // namespace

void InstructionFileFindings::add(InstructionFileTier tier, InstructionFileEstimate file,
                                  std::string importer)
{
    const std::lock_guard lock(m_mutex);
    if (!importer.empty())
        m_files.importers.emplace(file.path, std::move(importer));
    m_files.files(tier).push_back(std::move(file));
}

void InstructionFileFindings::addUnreadable(std::string path)
{
    const std::lock_guard lock(m_mutex);
    m_unreadablePaths.insert(std::move(path));
}

void InstructionFileFindings::forgetImporter(const std::string &path)
{
    const std::lock_guard lock(m_mutex);
    m_files.importers.erase(path);
}

InstructionFileSet InstructionFileFindings::set() const
{
    const std::lock_guard lock(m_mutex);
    InstructionFileSet files = m_files;
    files.unreadablePaths.assign(m_unreadablePaths.begin(), m_unreadablePaths.end());
    return files;
}

InstructionFileWalk::InstructionFileWalk(const InstructionFileScanner::Settings &settings,
                                         const std::filesystem::path &repository,
                                         std::shared_ptr<InstructionFileFindings> findings)
    : m_repository(standardizedPath(repository)),
      m_home(standardizedPath(settings.home)),
      m_maxImportDepth(settings.maxImportDepth),
      m_findings(std::move(findings))
{}

void InstructionFileWalk::run()
{
    for (const char *name : {"CLAUDE.md", "CLAUDE.local.md", "AGENTS.md"})
        admit(m_repository / name, {0, InstructionFileTier::inherited});
    for (const std::filesystem::path &folder : ancestorFolders())
        for (const char *name : {"CLAUDE.md", "CLAUDE.local.md"})
            admit(folder / name, {0, InstructionFileTier::inherited});
    admit(m_home / ".claude/CLAUDE.md", {0, InstructionFileTier::personal});
}

void InstructionFileWalk::admit(const std::string &path, const Route &route)
{
    const int depth = route.depth;
    if (depth > m_maxImportDepth || m_findings->isStopped())
        return;
    SeenFile *const seen = seenFile(path, route);
    if (depth == 0)
        m_findings->forgetImporter(repairedUtf8(path));
    if (seen == nullptr || seen->depth <= depth)
        return;
    // A shorter way to the file brings imports into reach that the depth limit cut off before.
    seen->depth = depth;
    if (depth < m_maxImportDepth && !seen->areImportsRead) {
        RegularFile::Failure ignored;
        // rarely taken: the file was deleted since it was counted
        if (auto file = InstructionFolders::opened(path, m_folders.entryAt(path), ignored))
            read(*file, depth, *seen);
    }
    if (seen->isReadDenied)
        m_findings->addUnreadable(repairedUtf8(path));
    if (depth == m_maxImportDepth)
        return;
    for (const std::string &token : seen->importTokens) {
        // rarely taken: the time is up between two imports
        if (m_findings->isStopped())
            return;
        admit(importTarget(token, path), {depth + 1, route.origin, path});
    }
}

InstructionFileWalk::SeenFile *InstructionFileWalk::seenFile(const std::string &path,
                                                             const Route &route)
{
    const auto known = m_seenByPath.find(path);
    if (known != m_seenByPath.end())
        return known->second;
    // A system call would truncate the path at a NUL.
    if (path.find('\0') != std::string::npos)
        return nullptr;
    const InstructionFolders::Entry entry = m_folders.entryAt(path);
    auto seen = m_seen.find(entry.identityPath);
    if (seen == m_seen.end()) {
        std::optional<SeenFile> file = countedFile(path, entry, route);
        if (!file)
            return nullptr;
        seen = m_seen.emplace(entry.identityPath, std::move(*file)).first;
    }
    return m_seenByPath.emplace(path, &seen->second).first->second;
}

std::optional<InstructionFileWalk::SeenFile>
InstructionFileWalk::countedFile(const std::string &path, const InstructionFolders::Entry &entry,
                                 const Route &route)
{
    RegularFile::Failure failure;
    std::optional<RegularFile> file = InstructionFolders::opened(path, entry, failure);
    if (!file) {
        if (isUnreadable(path, failure))
            m_findings->addUnreadable(repairedUtf8(path));
        return std::nullopt;
    }
    m_findings->add(tierOf(path, route.origin),
                    InstructionFileEstimate::fromPath(repairedUtf8(path), file->size()),
                    repairedUtf8(route.importer));
    SeenFile seen;
    read(*file, route.depth, seen);
    return seen;
}

/// Finds the imports of a file; of a large one at the last depth, where nobody follows them, only
/// whether it can be read.
void InstructionFileWalk::read(RegularFile &file, int depth, SeenFile &seen) const
{
    RegularFile::Failure failure;
    seen.areImportsRead = depth < m_maxImportDepth || file.size() <= smallSize;
    const auto content = file.readUpTo(seen.areImportsRead ? readLimit(file) : 1, &failure);
    if (!content)
        seen.isReadDenied = failure.isDenied();
    else if (seen.areImportsRead)
        seen.importTokens = importTokensOf(*content);
}

std::vector<std::filesystem::path> InstructionFileWalk::ancestorFolders() const
{
    std::vector<std::filesystem::path> folders;
    std::filesystem::path folder = m_repository.parent_path();
    for (int count = 0; count < ancestorLimit && isUnderOrAt(folder.native(), m_home.native());
         ++count) {
        folders.push_back(folder);
        if (folder.native() == m_home.native())
            break;
        folder = folder.parent_path();
    }
    return folders;
}

InstructionFileTier InstructionFileWalk::tierOf(std::string_view path,
                                                InstructionFileTier origin) const
{
    const std::string &root = m_repository.native();
    const bool isOwn = root.ends_with('/') ? path.starts_with(root) : isUnderOrAt(path, root);
    return isOwn ? InstructionFileTier(InstructionFileTier::repository) : origin;
}

std::string InstructionFileWalk::importTarget(std::string_view token,
                                              const std::string &importer) const
{
    if (token.starts_with('~')) {
        token.remove_prefix(std::min(token.find_first_not_of('/', 1), token.size()));
        return standardizedPath(m_home / token).native();
    }
    const std::string_view folder = folderPart(importer);
    if (isPlain(token)) {
        std::string target;
        target.reserve(folder.size() + token.size());
        return target.append(folder).append(token);
    }
    return standardizedPath(std::filesystem::path(folder) / token).native();
}

} // namespace Loadwick
