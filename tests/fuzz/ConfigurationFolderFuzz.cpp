#include <string>
#include <vector>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "posix/ProcessContext.h"
#include "probe/TranscriptLocator.h"
#include "text/PathText.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

/// The components below the root, with "." and ".." resolved.
std::vector<std::string> walked(std::string_view path)
{
    std::vector<std::string> names;
    FuzzInput input(path);
    while (!input.isAtEnd()) {
        const std::string_view name = input.takeUpTo('/');
        if (name == ".." && !names.empty())
            names.pop_back();
        else if (!name.empty() && name != "." && name != "..")
            names.emplace_back(name);
    }
    return names;
}

std::string joined(const std::vector<std::string> &names)
{
    std::string path;
    for (const std::string &name : names)
        path.append("/").append(name);
    return path.empty() ? "/" : path;
}

/// The folder by the rules in words.
std::string expectedFolder(std::string_view given, const std::string &workingFolder)
{
    std::string folder(given);
    if (given == "~" || given.starts_with("~/"))
        folder = homeFolder(currentEnvironment()) + folder.substr(1);
    if (!folder.starts_with('/'))
        folder = workingFolder + "/" + folder;
    return joined(walked(folder));
}

void checkConfigurationFolder(std::string_view bytes)
{
    FuzzInput input(bytes);
    const std::string workingFolder = "/" + std::string(input.takeLine());
    const std::string_view value = input.rest();
    const auto folder = TranscriptLocator::normalizedConfigDir(value, workingFolder);
    require(folder.has_value() == !trimmed(value).empty(), "white space alone is not a folder");
    if (!folder)
        return;
    require(*folder == expectedFolder(trimmed(value), workingFolder),
            "the folder follows the rules");
    require(standardizedPath(*folder) == *folder, "the path is already normalised");
    require(isUtf8(pathText(*folder)), "a path has a text");
    const auto root =
        TranscriptLocator::defaultProjectsRoot("/nobody", {{"CLAUDE_CONFIG_DIR", *folder + "/."}});
    require(root == std::filesystem::path(*folder) / "projects", "transcripts are in the folder");
}

const FuzzTarget target("ConfigurationFolder", checkConfigurationFolder);

} // namespace

} // namespace Loadwick
