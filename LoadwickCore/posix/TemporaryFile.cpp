#include "posix/TemporaryFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "posix/PosixFileSystem.h"

namespace Loadwick {

namespace {

constexpr std::string_view randomPart = "XXXXXX"; // as mkostemp wants it
constexpr int attempts = 5;

std::string prefixFor(const std::filesystem::path &target)
{
    return "." + target.filename().native() + ".";
}

bool isAbandonedName(std::string_view name, std::string_view prefix)
{
    return name.size() == prefix.size() + randomPart.size() && name.starts_with(prefix) &&
           name.find_first_not_of("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ",
                                  prefix.size()) == std::string_view::npos;
}

/// Locks the file that was just created. False when somebody who took it for an abandoned one came
/// first; a file system without locks counts as locked.
bool lockOwn(int descriptor)
{
    // rarely taken: another program would have to come within this call
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return false;
    struct stat status = {};
    // rarely taken: another program would have to come before this call
    return fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

void removeIfUnlocked(const std::filesystem::path &path)
{
    const FileDescriptor descriptor(
        open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC));
    if (descriptor.isOpen() && flock(descriptor.number(), LOCK_EX | LOCK_NB) == 0)
        unlink(path.c_str());
}

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        // not taken: a write of some bytes to a file writes some or fails
        else if (written == 0 || errno != EINTR)
            return false;
    }
    return true;
}

bool sync(int descriptor)
{
    int result = fsync(descriptor);
    while (result != 0 && errno == EINTR)
        result = fsync(descriptor);
    return result == 0;
}

} // namespace

std::optional<TemporaryFile> TemporaryFile::createFor(const std::filesystem::path &target)
{
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::string path = target.parent_path() / (prefixFor(target) + std::string(randomPart));
        FileDescriptor descriptor(mkostemp(path.data(), O_CLOEXEC));
        if (!descriptor.isOpen() && errno != EINTR)
            return std::nullopt;
        if (!descriptor.isOpen())
            continue;
        TemporaryFile file(std::move(descriptor), std::move(path));
        // The umask may have taken even our own permissions.
        if (lockOwn(file.m_descriptor.number()) && fchmod(file.m_descriptor.number(), 0600) == 0)
            return file;
    }
    return std::nullopt;
}

void TemporaryFile::removeAbandoned(const std::filesystem::path &target)
{
    const std::string prefix = prefixFor(target);
    const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
    // The standard library's walk through a folder ends the program when memory runs out.
    PosixFileSystem().list(folder, [&](const std::string &name, FileSystem::EntryKind kind) {
        if (kind == FileSystem::EntryKind::file && isAbandonedName(name, prefix))
            removeIfUnlocked(folder / name);
        return FileSystem::Walk::goOn;
    });
}

TemporaryFile::TemporaryFile(FileDescriptor descriptor, std::string path) noexcept
    : m_descriptor(std::move(descriptor)), m_path(std::move(path))
{}

TemporaryFile::TemporaryFile(TemporaryFile &&other) noexcept
    : m_descriptor(std::move(other.m_descriptor)), m_path(std::exchange(other.m_path, {}))
{}

TemporaryFile::~TemporaryFile()
{
    if (!m_path.empty())
        unlink(m_path.c_str());
}

bool TemporaryFile::write(std::string_view bytes)
{
    return writeAll(m_descriptor.number(), bytes) && sync(m_descriptor.number());
}

bool TemporaryFile::replace(const std::filesystem::path &target)
{
    if (rename(m_path.c_str(), target.c_str()) != 0)
        return false;
    m_path.clear();
    return true;
}

} // namespace Loadwick
