#include "support/InstructionHome.h"

namespace Loadwick {

namespace {

std::vector<std::string> relativePaths(const std::vector<InstructionFileEstimate> &files,
                                       const std::filesystem::path &base)
{
    std::vector<std::string> paths;
    for (const InstructionFileEstimate &file : files)
        paths.push_back(std::filesystem::path(file.path).lexically_relative(base));
    return paths;
}

} // namespace

InstructionHome::InstructionHome()
{
    std::filesystem::create_directories(root());
}

void InstructionHome::writeOwn(const std::string &name, std::string_view text) const
{
    folder.write(root() / name, text);
}

InstructionFileScanner InstructionHome::scanner() const
{
    return InstructionFileScanner({.home = home()});
}

InstructionFileSet InstructionHome::scanned() const
{
    return scanner().scanSynchronously(root());
}

std::vector<std::string>
InstructionHome::pathsOf(const std::vector<InstructionFileEstimate> &files) const
{
    return relativePaths(files, folder.path());
}

std::vector<std::string> InstructionHome::ownFiles() const
{
    return relativePaths(scanned().repositoryFiles, root());
}

} // namespace Loadwick
