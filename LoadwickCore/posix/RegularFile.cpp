#include "posix/RegularFile.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Loadwick {

namespace {

constexpr std::size_t pieceSize = 65536;

void report(RegularFile::Failure *failure, int errorNumber) noexcept
{
    if (failure != nullptr)
        failure->errorNumber = errorNumber;
}

template<typename Call>
auto uninterrupted(Call call) noexcept
{
    auto outcome = call();
    while (outcome < 0 && errno == EINTR)
        outcome = call();
    return outcome;
}

/// Whether a status was obtained and is that of a regular file; reports the reason if not.
bool isRegular(int outcome, const struct stat &status, RegularFile::Failure *failure) noexcept
{
    if (outcome != 0) {
        report(failure, errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        report(failure, 0);
        return false;
    }
    return true;
}

} // namespace

bool RegularFile::Failure::isDenied() const noexcept
{
    return errorNumber == EACCES || errorNumber == EPERM;
}

std::optional<RegularFile> RegularFile::open(const std::string &path, Failure *failure)
{
    // The system would truncate the path at a NUL and open another file.
    if (path.find('\0') != std::string::npos) {
        report(failure, ENOENT);
        return std::nullopt;
    }
    struct stat status = {};
    if (!isRegular(uninterrupted([&] { return ::stat(path.c_str(), &status); }), status, failure))
        return std::nullopt;
    return openSeen(path, failure);
}

std::optional<RegularFile> RegularFile::openSeen(const std::string &path, Failure *failure,
                                                 int folder)
{
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    RegularFile file(
        FileDescriptor(uninterrupted([&] { return ::openat(folder, path.c_str(), flags); })));
    if (!file.m_descriptor.isOpen()) {
        report(failure, errno);
        return std::nullopt;
    }
    struct stat status = {};
    if (!isRegular(::fstat(file.m_descriptor.number(), &status), status, failure))
        return std::nullopt;
    file.m_size = status.st_size;
    file.m_identity = {.device = status.st_dev, .inode = status.st_ino};
    return file;
}

bool RegularFile::skipTo(std::int64_t offset) noexcept
{
    return offset >= 0 && ::lseek(m_descriptor.number(), offset, SEEK_SET) == offset;
}

std::optional<std::size_t> RegularFile::read(std::span<char> buffer, Failure *failure)
{
    const ssize_t count =
        uninterrupted([&] { return ::read(m_descriptor.number(), buffer.data(), buffer.size()); });
    if (count < 0) {
        report(failure, errno);
        return std::nullopt;
    }
    return static_cast<std::size_t>(count);
}

std::optional<std::string> RegularFile::readUpTo(std::size_t limit, Failure *failure)
{
    // The size is a hint: a file grows while it is read, and some claim to be empty.
    std::string content;
    content.reserve(std::min(limit, static_cast<std::size_t>(m_size)));
    std::array<char, pieceSize> piece;
    while (content.size() < limit) {
        const std::size_t wanted = std::min(piece.size(), limit - content.size());
        const auto count = read(std::span(piece).first(wanted), failure);
        if (!count)
            return std::nullopt;
        if (*count == 0)
            break;
        content.append(piece.data(), *count);
    }
    return content;
}

} // namespace Loadwick
