#include "posix/AtomicFile.h"

#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "posix/TemporaryFile.h"

namespace Loadwick::AtomicFile {

namespace {

namespace fs = std::filesystem;

constexpr int linkLimit = 40; // as many as Linux itself follows

fs::file_type typeOf(const fs::path &path)
{
    std::error_code unknown;
    return fs::symlink_status(path, unknown).type();
}

/// Where a chain of links ends, without asking that something is there. Nothing for a chain that
/// has no end or cannot be read.
std::optional<fs::path> linkTarget(fs::path path)
{
    for (int count = 0; count < linkLimit; ++count) {
        if (typeOf(path) != fs::file_type::symlink)
            return path;
        std::error_code failure;
        const fs::path next = fs::read_symlink(path, failure);
        // not taken: the link would have to go between the two looks at it
        if (failure)
            return std::nullopt;
        // Not normalized: ".." behind a link to a folder means that folder's parent.
        path = path.parent_path() / next;
    }
    return std::nullopt;
}

/// Empty for a file, and where nothing is yet.
std::error_code whyNotToReplace(const fs::path &path)
{
    std::error_code unknown;
    switch (fs::symlink_status(path, unknown).type()) {
    case fs::file_type::regular:
    case fs::file_type::not_found:
        return {};
    case fs::file_type::directory:
        return std::make_error_code(std::errc::is_a_directory);
    default:
        return unknown ? unknown : std::make_error_code(std::errc::not_supported);
    }
}

/// Makes a rename or an unlink in the folder of `path` outlive a power cut, where the file system
/// can.
void syncFolderOf(const fs::path &path)
{
    const fs::path folder = path.has_parent_path() ? path.parent_path() : ".";
    const FileDescriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen())
        fsync(descriptor.number());
}

} // namespace

bool replace(const fs::path &path, std::string_view bytes)
{
    std::error_code unheard;
    return replace(path, bytes, unheard);
}

bool replace(const fs::path &path, std::string_view bytes, std::error_code &failure)
{
    const std::optional<fs::path> target = linkTarget(path);
    if (!target) {
        failure = std::make_error_code(std::errc::too_many_symbolic_link_levels);
        return false;
    }
    TemporaryFile::removeAbandoned(*target);
    failure = whyNotToReplace(*target);
    if (failure)
        return false;
    std::optional<TemporaryFile> file = TemporaryFile::createFor(*target);
    if (!file || !file->write(bytes) || !file->replace(*target)) {
        failure.assign(errno, std::generic_category());
        return false;
    }
    syncFolderOf(*target);
    return true;
}

void remove(const fs::path &path)
{
    const std::optional<fs::path> target = linkTarget(path);
    if (!target)
        return;
    const bool isBehindLink = *target != path;
    const fs::file_type type = typeOf(*target);
    if (type == fs::file_type::regular ||
        (!isBehindLink && type != fs::file_type::directory && type != fs::file_type::not_found))
        unlink(target->c_str());
    TemporaryFile::removeAbandoned(*target);
    syncFolderOf(*target);
}

} // namespace Loadwick::AtomicFile
