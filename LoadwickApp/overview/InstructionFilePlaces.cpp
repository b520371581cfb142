#include "overview/InstructionFilePlaces.h"

#include "text/PathText.h"

namespace Loadwick {
namespace {

/// The root alone ends in a slash, and everything lies below it.
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

} // namespace

InstructionFilePlaces::InstructionFilePlaces(const std::filesystem::path &repository,
                                             const std::filesystem::path &home)
    : m_repository(folderText(repository)), m_personal(folderText(home / ".claude"))
{}

InstructionFileTier InstructionFilePlaces::tierOf(std::string_view path) const
{
    if (isIn(path, m_repository))
        return InstructionFileTier::repository;
    return isIn(path, m_personal) ? InstructionFileTier::personal : InstructionFileTier::inherited;
}

} // namespace Loadwick
