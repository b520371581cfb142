#include "text/PathText.h"

#include "text/UnicodeText.h"

namespace Loadwick {

std::string pathText(const std::filesystem::path &path)
{
    return repairedUtf8(path.native());
}

std::filesystem::path standardizedPath(const std::filesystem::path &path)
{
    // Parsed again: a path joined to a root of several slashes keeps them all (libstdc++ 12).
    std::filesystem::path standard = std::filesystem::path(path.native()).lexically_normal();
    if (standard.has_filename())
        return standard;
    // The root may be spelled with several slashes.
    if (!standard.has_relative_path())
        return standard.root_directory().empty() ? standard : "/";
    return standard.parent_path();
}

} // namespace Loadwick
