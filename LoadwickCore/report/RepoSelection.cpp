#include "report/RepoSelection.h"

#include "text/PathText.h"

namespace Loadwick {

namespace {

/// The root keeps its slash. Nothing else changes: the path stays as it was chosen.
std::filesystem::path withoutTrailingSlash(std::filesystem::path path)
{
    while (!path.has_filename() && path.has_relative_path())
        path = path.parent_path();
    return path;
}

} // namespace

RepoSelection RepoSelection::fromUrl(const std::filesystem::path &url)
{
    const std::filesystem::path folder = withoutTrailingSlash(url);
    return {.url = url,
            .displayName = pathText(folder.has_filename() ? folder.filename() : folder)};
}

std::string RepoSelection::id() const
{
    return pathText(withoutTrailingSlash(url));
}

} // namespace Loadwick
