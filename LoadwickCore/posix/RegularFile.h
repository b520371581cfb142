#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include <fcntl.h>

#include "posix/FileDescriptor.h"

namespace Loadwick {

/// A regular file, open for reading. Nothing else is ever held open: the path is examined before it
/// is opened (a FIFO, device or socket is refused unopened) and once more through the open
/// descriptor, and opening cannot block.
class RegularFile
{
public:
    /// The process's current folder, as `openat` takes it.
    static constexpr int currentFolder = AT_FDCWD;

    /// Why there is no file: an `errno` value, or 0 when the path is not a regular file.
    struct Failure
    {
        int errorNumber = 0;
        /// Permission to read was denied (EACCES, EPERM).
        [[nodiscard]] bool isDenied() const noexcept;
    };

    /// `path` in bytes, as `std::filesystem::path` holds them. Follows links. Nothing on failure,
    /// with the reason in `failure` unless that is null.
    [[nodiscard]] static std::optional<RegularFile> open(const std::string &path,
                                                         Failure *failure = nullptr);

    /// The same for a path that was just seen to lead to a regular file: it is examined through the
    /// open descriptor only. A relative path begins at the descriptor `folder`.
    [[nodiscard]] static std::optional<RegularFile>
    openSeen(const std::string &path, Failure *failure = nullptr, int folder = currentFolder);

    /// Its size in bytes when it was opened.
    [[nodiscard]] std::int64_t size() const noexcept { return m_size; }

    /// Device and inode: equal for two names of one file.
    struct Identity
    {
        std::uint64_t device;
        std::uint64_t inode;
        friend auto operator<=>(const Identity &, const Identity &) = default;
    };
    [[nodiscard]] Identity identity() const noexcept { return m_identity; }

    /// Seeks to `offset` bytes from the beginning; false on failure.
    [[nodiscard]] bool skipTo(std::int64_t offset) noexcept;

    /// Reads into `buffer`; bytes read, 0 at the end, nothing on an error. Retries an interrupted
    /// read.
    [[nodiscard]] std::optional<std::size_t> read(std::span<char> buffer,
                                                  Failure *failure = nullptr);

    /// The rest of the file, but at most `limit` bytes. Nothing on an error.
    [[nodiscard]] std::optional<std::string> readUpTo(std::size_t limit,
                                                      Failure *failure = nullptr);

private:
    explicit RegularFile(FileDescriptor descriptor) noexcept : m_descriptor(std::move(descriptor))
    {}

    FileDescriptor m_descriptor;
    std::int64_t m_size = 0;
    Identity m_identity{};
};

} // namespace Loadwick
