#include "report/InstructionFolders.h"

#include <cstdlib>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace Loadwick {

namespace {

/// To go on from a folder, one need not be allowed to list it.
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
    struct stat status
    {};
    const int outcome = ::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW);
    return outcome == 0 ? status.st_mode & S_IFMT : 0;
}

} // namespace

InstructionFolders::Place InstructionFolders::placeOf(const std::string &url)
{
    const std::size_t nameStart = url.rfind('/') + 1;
    const Folder &folder = folderAt(url.substr(0, nameStart));
    Place place{.identityPath = {}, .type = 0, .folder = RegularFile::currentFolder, .name = url};
    if (folder.descriptor.isOpen()) {
        place.folder = folder.descriptor.number();
        place.name.erase(0, nameStart);
    }
    place.type = typeOf(place.folder, place.name);
    const bool isItsOwn = place.type != 0 && place.type != S_IFLNK && nameStart > 0;
    place.identityPath = isItsOwn ? folder.resolvedPath + url.substr(nameStart) : resolvedPath(url);
    return place;
}

std::optional<RegularFile> InstructionFolders::opened(const std::string &url, const Place &place,
                                                      RegularFile::Failure &failure)
{
    return place.type == S_IFREG ? RegularFile::openSeen(place.name, &failure, place.folder)
                                 : RegularFile::open(url, &failure);
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
