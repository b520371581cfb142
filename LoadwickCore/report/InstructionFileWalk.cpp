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

/// The bytes to read of a file: its own, where it tells how many it has, so that no read has to
/// find the end; and enough to see that it is too long.
std::size_t readLimit(const RegularFile &file)
{
    constexpr std::int64_t limit = InstructionFileScanner::importSearchLimit + 1;
    return static_cast<std::size_t>(file.size() > 0 ? std::min(file.size(), limit) : limit);
}

/// Whether a path, which is not empty, stays as it is when it is standardized behind a standard
/// folder. No for some that would.
bool isPlain(std::string_view path)
{
    return path.front() != '/' && path.front() != '.' && path.back() != '/' &&
           path.find("//") == std::string_view::npos && path.find("/.") == std::string_view::npos;
}

/// What a path has up to its last slash, and that.
std::string_view folderPart(std::string_view path)
{
    return path.substr(0, path.rfind('/') + 1);
}

bool isUnderOrAt(std::string_view path, const std::string &folder)
{
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// Whether a file that could not be opened is there all the same.
bool isUnreadable(const std::string &url, const RegularFile::Failure &failure)
{
    if (failure.isDenied())
        return true;
    std::error_code ignored;
    return failure.errorNumber != 0 && std::filesystem::is_regular_file(url, ignored);
}

/// Each token once, in order: said twice, it leads to the same file. None for a file that is too
/// long to be searched or is not UTF-8.
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

InstructionFileWalk::InstructionFileWalk(const InstructionFileScanner::Settings &settings,
                                         const std::filesystem::path &repository,
                                         std::shared_ptr<InstructionFileFindings> findings)
    : m_root(standardizedPath(repository)),
      m_home(standardizedPath(settings.home)),
      m_maxImportDepth(settings.maxImportDepth),
      m_findings(std::move(findings))
{}

void InstructionFileWalk::run()
{
    for (const char *name : {"CLAUDE.md", "CLAUDE.local.md", "AGENTS.md"})
        admit(m_root / name, 0, InstructionFileTier::inherited);
    for (const std::filesystem::path &folder : ancestorFolders())
        for (const char *name : {"CLAUDE.md", "CLAUDE.local.md"})
            admit(folder / name, 0, InstructionFileTier::inherited);
    admit(m_home / ".claude/CLAUDE.md", 0, InstructionFileTier::personal);
}

void InstructionFileWalk::admit(const std::string &url, int depth, InstructionFileTier origin)
{
    if (depth > m_maxImportDepth || m_findings->isStopped())
        return;
    SeenFile *const seen = seenFile(url, origin);
    if (seen == nullptr || seen->depth <= depth)
        return;
    // On a shorter road than before, the imports that the depth limit cut off come into reach.
    seen->depth = depth;
    // not taken: only a disk of the network denies what an open file holds
    if (seen->isReadDenied)
        m_findings->addUnreadable(repairedUtf8(url));
    for (const std::string &token : seen->importTokens) {
        if (depth == m_maxImportDepth || m_findings->isStopped())
            return;
        admit(importTarget(token, url), depth + 1, origin);
    }
}

InstructionFileWalk::SeenFile *InstructionFileWalk::seenFile(const std::string &url,
                                                             InstructionFileTier origin)
{
    const auto known = m_seenByURL.find(url);
    if (known != m_seenByURL.end())
        return known->second;
    // A system call would take a path with a NUL inside for a shorter one.
    if (url.find('\0') != std::string::npos)
        return nullptr;
    // Two names of one file have one identity.
    const InstructionFolders::Place place = m_folders.placeOf(url);
    auto seen = m_seen.find(place.identityPath);
    if (seen == m_seen.end()) {
        std::optional<SeenFile> file = countedFile(url, place, origin);
        if (!file)
            return nullptr;
        seen = m_seen.emplace(place.identityPath, std::move(*file)).first;
    }
    return m_seenByURL.emplace(url, &seen->second).first->second;
}

std::optional<InstructionFileWalk::SeenFile>
InstructionFileWalk::countedFile(const std::string &url, const InstructionFolders::Place &place,
                                 InstructionFileTier origin)
{
    RegularFile::Failure failure;
    std::optional<RegularFile> file = InstructionFolders::opened(url, place, failure);
    if (!file) {
        if (isUnreadable(url, failure))
            m_findings->addUnreadable(repairedUtf8(url));
        return std::nullopt;
    }
    m_findings->add(tierOf(url, origin),
                    InstructionFileEstimate::fromPath(repairedUtf8(url), file->size()));
    SeenFile seen;
    if (const std::optional<std::string> content = file->readUpTo(readLimit(*file), &failure))
        seen.importTokens = importTokensOf(*content);
    else
        seen.isReadDenied = failure.isDenied();
    return seen;
}

std::vector<std::filesystem::path> InstructionFileWalk::ancestorFolders() const
{
    std::vector<std::filesystem::path> folders;
    std::filesystem::path folder = m_root.parent_path();
    for (int count = 0; count < ancestorLimit && isUnderOrAt(folder.native(), m_home.native());
         ++count) {
        folders.push_back(folder);
        if (folder.native() == m_home.native())
            break;
        folder = folder.parent_path();
    }
    return folders;
}

InstructionFileTier InstructionFileWalk::tierOf(std::string_view url,
                                                InstructionFileTier origin) const
{
    const std::string &root = m_root.native();
    const bool isOwn = root.ends_with('/') ? url.starts_with(root) : isUnderOrAt(url, root);
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
