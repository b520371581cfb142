#include "report/InstructionFolders.h"

#include <cstdlib>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace Loadwick {

namespace {

/// Reaching a file through a folder does not need permission to list it.
#if defined(O_PATH)
constexpr int folderFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;
#else
constexpr int folderFlags = O_SEARCH | O_DIRECTORY | O_CLOEXEC;
#endif

std::string resolvedPath(const std::string &path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr),
                                                               &std::free);
    return resolved ? resolved.get() : path;
}

std::string withSlash(std::string path)
{
    if (!path.ends_with('/'))
        path += '/';
    return path;
}

mode_t typeOf(int folder, const std::string &name)
{
    struct stat status = {};
    const int outcome = ::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW);
    return outcome == 0 ? status.st_mode & S_IFMT : 0;
}

} // namespace

InstructionFolders::Entry InstructionFolders::entryAt(const std::string &path)
{
    const std::size_t nameStart = path.rfind('/') + 1;
    const Folder &folder = folderAt(path.substr(0, nameStart));
    Entry entry{.identityPath = {}, .type = 0, .folder = RegularFile::currentFolder, .name = path};
    if (folder.descriptor.isOpen()) {
        entry.folder = folder.descriptor.number();
        entry.name.erase(0, nameStart);
    }
    entry.type = typeOf(entry.folder, entry.name);
    const bool isItsOwn = entry.type != 0 && entry.type != S_IFLNK && nameStart > 0;
    entry.identityPath =
        isItsOwn ? folder.resolvedPath + path.substr(nameStart) : resolvedPath(path);
    return entry;
}

std::optional<RegularFile> InstructionFolders::opened(const std::string &path, const Entry &entry,
                                                      RegularFile::Failure &failure)
{
    return entry.type == S_IFREG ? RegularFile::openSeen(entry.name, &failure, entry.folder)
                                 : RegularFile::open(path, &failure);
}

const InstructionFolders::Folder &InstructionFolders::folderAt(const std::string &path)
{
    const auto known = m_folders.find(path);
    if (known != m_folders.end())
        return known->second;
    const bool isHeld = m_folders.size() < heldLimit;
    Folder folder{.resolvedPath = withSlash(resolvedPath(path)),
                  .descriptor = FileDescriptor(isHeld ? ::open(path.c_str(), folderFlags) : -1)};
    return m_folders.emplace(path, std::move(folder)).first->second;
}

} // namespace Loadwick
