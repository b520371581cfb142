#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include <fcntl.h>

namespace Loadwick {

/// A regular file, open for reading. Nothing else is ever opened for long: the path is looked at
/// before it is opened (a FIFO, device or socket is refused unopened) and once more behind the open
/// descriptor, and opening cannot block.
class RegularFile
{
public:
    /// The folder of the process, as `openat` takes it.
    static constexpr int currentFolder = AT_FDCWD;

    /// Why there is no file: an `errno` value; 0 means that the path leads to something that is no
    /// regular file.
    struct Failure
    {
        int errorNumber = 0;
        /// No permission to read (EACCES, EPERM).
        [[nodiscard]] bool isDenied() const noexcept;
    };

    /// `path` in bytes, as a `std::filesystem::path` gives them. Follows links. On failure nothing,
    /// and the reason in `failure` when one is asked for.
    [[nodiscard]] static std::optional<RegularFile> open(const std::string &path,
                                                         Failure *failure = nullptr);

    /// The same for a path that was just seen to lead to a regular file: it is looked at only
    /// behind the open descriptor. A relative path begins at the descriptor `folder`.
    [[nodiscard]] static std::optional<RegularFile>
    openSeen(const std::string &path, Failure *failure = nullptr, int folder = currentFolder);

    RegularFile(RegularFile &&other) noexcept;
    RegularFile &operator=(RegularFile &&other) noexcept;
    RegularFile(const RegularFile &) = delete;
    RegularFile &operator=(const RegularFile &) = delete;
    ~RegularFile();

    /// Bytes when it was opened.
    [[nodiscard]] std::int64_t size() const noexcept { return m_size; }

    /// Device and inode: equal for two names of one file.
    struct Identity
    {
        std::uint64_t device;
        std::uint64_t inode;
        friend auto operator<=>(const Identity &, const Identity &) = default;
    };
    [[nodiscard]] Identity identity() const noexcept { return m_identity; }

    /// Reads on from `offset` bytes behind the beginning; false when that is impossible.
    [[nodiscard]] bool skipTo(std::int64_t offset) noexcept;

    /// Reads into `buffer`; bytes read, 0 at the end, nothing on an error (interrupted reads are
    /// taken up again).
    [[nodiscard]] std::optional<std::size_t> read(std::span<char> buffer,
                                                  Failure *failure = nullptr);

    /// Everything from here on, but at most `limit` bytes. Nothing on an error.
    [[nodiscard]] std::optional<std::string> readUpTo(std::size_t limit,
                                                      Failure *failure = nullptr);

private:
    RegularFile(int descriptor, std::int64_t size, Identity identity) noexcept;

    int m_descriptor;
    std::int64_t m_size;
    Identity m_identity;
};

} // namespace Loadwick
