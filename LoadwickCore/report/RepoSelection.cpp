#include "report/RepoSelection.h"

#include "text/PathText.h"

namespace Loadwick {

namespace {

/// The root keeps its slash. The path otherwise stays as it was chosen.
std::filesystem::path withoutTrailingSlash(std::filesystem::path path)
{
    while (!path.has_filename() && path.has_relative_path())
        path = path.parent_path();
    return path;
}

} // namespace

RepoSelection RepoSelection::fromUrl(const std::filesystem::path &url)
{
    const std::filesystem::path named = withoutTrailingSlash(url);
    return {.url = url, .displayName = pathText(named.has_filename() ? named.filename() : named)};
}

std::string RepoSelection::path() const
{
    return pathText(withoutTrailingSlash(url));
}

} // namespace Loadwick
