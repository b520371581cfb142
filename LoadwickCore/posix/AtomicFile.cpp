#include "posix/AtomicFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "posix/FileSystem.h"
#include "posix/Uninterrupted.h"

namespace Loadwick::AtomicFile {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view randomPart = "XXXXXX"; // required by mkostemp
constexpr int attempts = 5;

std::string prefixFor(const fs::path &target)
{
    return "." + target.filename().native() + ".";
}

bool isAbandonedName(std::string_view name, std::string_view prefix)
{
    return name.size() == prefix.size() + randomPart.size() && name.starts_with(prefix) &&
           name.find_first_not_of("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ",
                                  prefix.size()) == std::string_view::npos;
}

/// Locks a file that was just created. False when another writer took it for an abandoned one
/// first; a file system without locks counts as locked.
bool lockOwn(int descriptor)
{
    // rarely taken: another program would have to lock it during this call
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return false;
    struct stat status = {};
    // rarely taken: another program would have to lock it before this call
    return fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

void removeIfUnlocked(const fs::path &path)
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
        // unreachable: a write of some bytes to a file writes some or fails
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

/// A temporary file that replaces its target atomically or not at all. It has a random name beside
/// the target, and its writer holds a lock on it: an unlocked one was left by a crash.
class TemporaryFile
{
public:
    /// Creates one for `target`, empty and locked, with mode 0600.
    [[nodiscard]] static std::optional<TemporaryFile> createFor(const fs::path &target);

    TemporaryFile(TemporaryFile &&other) noexcept;
    TemporaryFile &operator=(TemporaryFile &&) = delete;
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    /// Removes the file unless it has replaced its target.
    ~TemporaryFile();

    /// Writes all of `bytes` and syncs them to the disk.
    [[nodiscard]] bool write(std::string_view bytes);

    /// Renames the file over `target`.
    [[nodiscard]] bool replace(const fs::path &target);

private:
    TemporaryFile(FileDescriptor descriptor, std::string path) noexcept
        : m_descriptor(std::move(descriptor)), m_path(std::move(path))
    {}

    FileDescriptor m_descriptor;
    std::string m_path; ///< empty once the file is not ours to remove
};

std::optional<TemporaryFile> TemporaryFile::createFor(const fs::path &target)
{
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::string path = target.parent_path() / (prefixFor(target) + std::string(randomPart));
        FileDescriptor descriptor(mkostemp(path.data(), O_CLOEXEC));
        if (!descriptor.isOpen() && errno != EINTR)
            return std::nullopt;
        if (!descriptor.isOpen())
            continue;
        TemporaryFile file(std::move(descriptor), std::move(path));
        // The umask may have removed even the owner's permissions.
        if (lockOwn(file.m_descriptor.number()) && fchmod(file.m_descriptor.number(), 0600) == 0)
            return file;
    }
    return std::nullopt;
}

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

bool TemporaryFile::replace(const fs::path &target)
{
    if (rename(m_path.c_str(), target.c_str()) != 0)
        return false;
    m_path.clear();
    return true;
}

/// Removes the files of crashed writers beside `target`. Never fails.
void removeAbandoned(const fs::path &target)
{
    const std::string prefix = prefixFor(target);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";
    // The standard library's walk through a folder ends the program when memory runs out.
    PosixFileSystem().list(folder, [&](const std::string &name, FileSystem::EntryKind kind) {
        if (kind == FileSystem::EntryKind::file && isAbandonedName(name, prefix))
            removeIfUnlocked(folder / name);
        return FileSystem::Walk::proceed;
    });
}

constexpr int linkLimit = 40; // as many as Linux itself follows

fs::file_type typeOf(const fs::path &path, std::error_code &failure)
{
    return uninterrupted(failure, [&] { return fs::symlink_status(path, failure); }).type();
}

/// Where a chain of links ends, dangling or not. Nothing for a chain that is endless or unreadable.
std::optional<fs::path> linkTarget(fs::path path)
{
    for (int count = 0; count < linkLimit; ++count) {
        std::error_code failure;
        if (typeOf(path, failure) != fs::file_type::symlink)
            return path;
        const fs::path next = fs::read_symlink(path, failure);
        // unreachable: the link would have to vanish between the two calls
        if (failure)
            return std::nullopt;
        // Not normalized: ".." behind a link to a folder means that folder's parent.
        path = path.parent_path() / next;
    }
    return std::nullopt;
}

/// No error for a regular file or an unused path.
std::error_code checkReplaceable(const fs::path &path)
{
    std::error_code unknown;
    switch (typeOf(path, unknown)) {
    case fs::file_type::regular:
    case fs::file_type::not_found:
        return {};
    case fs::file_type::directory:
        return std::make_error_code(std::errc::is_a_directory);
    default:
        return unknown ? unknown : std::make_error_code(std::errc::not_supported);
    }
}

/// Makes a rename or an unlink in the folder of `path` durable, where the file system can.
void syncFolderOf(const fs::path &path)
{
    const fs::path folder = path.has_parent_path() ? path.parent_path() : ".";
    const FileDescriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen())
        fsync(descriptor.number());
}

} // namespace

std::error_code replace(const fs::path &path, std::string_view bytes)
{
    const std::optional<fs::path> target = linkTarget(path);
    if (!target)
        return std::make_error_code(std::errc::too_many_symbolic_link_levels);
    removeAbandoned(*target);
    if (const std::error_code reason = checkReplaceable(*target))
        return reason;
    std::optional<TemporaryFile> file = TemporaryFile::createFor(*target);
    if (!file || !file->write(bytes) || !file->replace(*target))
        return {errno, std::generic_category()};
    syncFolderOf(*target);
    return {};
}

void remove(const fs::path &path)
{
    const std::optional<fs::path> target = linkTarget(path);
    if (!target)
        return;
    const bool isBehindLink = *target != path;
    std::error_code unknown;
    const fs::file_type type = typeOf(*target, unknown);
    if (type == fs::file_type::regular ||
        (!isBehindLink && type != fs::file_type::directory && type != fs::file_type::not_found))
        unlink(target->c_str());
    removeAbandoned(*target);
    syncFolderOf(*target);
}

} // namespace Loadwick::AtomicFile
