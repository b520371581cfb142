#include "report/InstructionFileWalk.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_set>
#include <utility>

#include "probe/PathText.h"
#include "probe/RegularFile.h"
#include "probe/UnicodeText.h"
#include "report/InstructionImports.h"

namespace Loadwick {

namespace {

/// Two names of one file have one identity. A path that leads nowhere is its own.
std::string identityPath(const std::filesystem::path &url)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(url.c_str(), nullptr),
                                                               &std::free);
    return resolved ? std::string(resolved.get()) : url.native();
}

bool isUnderOrAt(const std::filesystem::path &path, const std::string &folder)
{
    return path.native() == folder || path.native().starts_with(folder + "/");
}

/// Whether a file that could not be opened is there all the same.
bool isUnreadable(const std::filesystem::path &url, const RegularFile::Failure &failure)
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

void InstructionFileWalk::admit(const std::filesystem::path &url, int depth,
                                InstructionFileTier origin)
{
    // A system call would take a path with a NUL inside for a shorter one.
    const bool isNameable = url.native().find('\0') == std::string::npos;
    if (depth > m_maxImportDepth || !isNameable || m_findings->isStopped())
        return;
    const std::string identity = identityPath(url);
    auto seen = m_seen.find(identity);
    if (seen == m_seen.end()) {
        std::optional<SeenFile> file = countedFile(url, origin);
        if (!file)
            return;
        seen = m_seen.emplace(identity, std::move(*file)).first;
    } else if (seen->second.depth <= depth) {
        return;
    }
    // On a shorter road than before, the imports that the depth limit cut off come into reach.
    seen->second.depth = depth;
    if (seen->second.isReadDenied)
        m_findings->addUnreadable(pathText(url));
    for (const std::string &token : seen->second.importTokens) {
        if (depth == m_maxImportDepth || m_findings->isStopped())
            return;
        admit(importTarget(token, url), depth + 1, origin);
    }
}

std::optional<InstructionFileWalk::SeenFile>
InstructionFileWalk::countedFile(const std::filesystem::path &url, InstructionFileTier origin)
{
    RegularFile::Failure failure;
    std::optional<RegularFile> file = RegularFile::open(url, &failure);
    if (!file) {
        if (isUnreadable(url, failure))
            m_findings->addUnreadable(pathText(url));
        return std::nullopt;
    }
    m_findings->add(tierOf(url, origin),
                    InstructionFileEstimate::fromPath(pathText(url), file->size()));
    SeenFile seen;
    constexpr auto limit = static_cast<std::size_t>(InstructionFileScanner::importSearchLimit) + 1;
    if (const std::optional<std::string> content = file->readUpTo(limit, &failure))
        seen.importTokens = importTokensOf(*content);
    else
        seen.isReadDenied = failure.isDenied();
    return seen;
}

std::vector<std::filesystem::path> InstructionFileWalk::ancestorFolders() const
{
    std::vector<std::filesystem::path> folders;
    std::filesystem::path folder = m_root.parent_path();
    for (int count = 0; count < ancestorLimit && isUnderOrAt(folder, m_home.native()); ++count) {
        folders.push_back(folder);
        if (folder.native() == m_home.native())
            break;
        folder = folder.parent_path();
    }
    return folders;
}

InstructionFileTier InstructionFileWalk::tierOf(const std::filesystem::path &url,
                                                InstructionFileTier origin) const
{
    const std::string &root = m_root.native();
    const bool isOwn =
        root.ends_with('/') ? url.native().starts_with(root) : isUnderOrAt(url, root);
    return isOwn ? InstructionFileTier(InstructionFileTier::repository) : origin;
}

std::filesystem::path InstructionFileWalk::importTarget(std::string_view token,
                                                        const std::filesystem::path &importer) const
{
    if (!token.starts_with('~'))
        return standardizedPath(importer.parent_path() / token);
    token.remove_prefix(std::min(token.find_first_not_of('/', 1), token.size()));
    return standardizedPath(m_home / token);
}

} // namespace Loadwick
