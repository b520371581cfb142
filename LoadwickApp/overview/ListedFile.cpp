#include "overview/ListedFile.h"

#include <algorithm>
#include <unordered_set>

#include "text/PathText.h"

namespace Loadwick {
namespace {

/// Only the root ends in a slash, and everything lies below it.
std::string folderText(const std::filesystem::path &folder)
{
    std::string text = pathText(standardizedPath(folder));
    if (text.ends_with('/'))
        text.pop_back();
    return text;
}

bool isIn(std::string_view path, const std::string &folder)
{
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

void append(std::vector<ListedFile> &list, const std::vector<InstructionFileEstimate> &files)
{
    for (const InstructionFileEstimate &file : files)
        list.push_back({.path = file.path, .estimate = &file});
}

} // namespace

TierFolders::TierFolders(const std::filesystem::path &repository, const std::filesystem::path &home)
    : m_repository(folderText(repository)),
      m_home(home.empty() ? std::string() : folderText(home)),
      m_personal(folderText(home / ".claude"))
{}

InstructionFileTier TierFolders::tierOf(std::string_view path) const
{
    if (isIn(path, m_repository))
        return InstructionFileTier::repository;
    return isIn(path, m_personal) ? InstructionFileTier::personal : InstructionFileTier::inherited;
}

std::string TierFolders::pathInRepository(std::string_view path) const
{
    const bool isInside = path.size() > m_repository.size() && isIn(path, m_repository);
    return isInside ? std::string(path.substr(m_repository.size() + 1)) : std::string();
}

std::string TierFolders::shortPath(std::string_view path) const
{
    if (const std::string inRepository = pathInRepository(path); !inRepository.empty())
        return inRepository.starts_with('~') ? "./" + inRepository : inRepository;
    const bool isAtHome = !m_home.empty() && isIn(path, m_home);
    return isAtHome ? "~" + std::string(path.substr(m_home.size())) : std::string(path);
}

std::vector<ListedFile> ListedFile::allReadable(const InstructionFileSet &files)
{
    std::vector<ListedFile> all;
    for (const InstructionFileTier tier : InstructionFileTier::all)
        append(all, files.files(tier));
    return all;
}

std::array<std::vector<ListedFile>, 3> ListedFile::byTier(const InstructionFileSet &files,
                                                          const TierFolders &folders)
{
    std::array<std::vector<ListedFile>, 3> tiers;
    std::unordered_set<std::string_view> readable;
    for (const InstructionFileTier tier : InstructionFileTier::all) {
        append(tiers[tier], files.files(tier));
        for (const ListedFile &file : tiers[tier])
            readable.insert(file.path);
    }
    for (const std::string &path : files.unreadablePaths)
        if (!readable.contains(path))
            tiers[folders.tierOf(path)].push_back({.path = path});
    return tiers;
}

std::vector<ListedFile> ListedFile::largest(const InstructionFileSet &files, std::size_t count)
{
    std::vector<ListedFile> all = allReadable(files);
    std::stable_sort(all.begin(), all.end(), [](const ListedFile &left, const ListedFile &right) {
        return left.estimate->estimatedTokens > right.estimate->estimatedTokens;
    });
    all.resize(std::min(count, all.size()));
    return all;
}

} // namespace Loadwick
