#pragma once

#include <utility>

namespace Loadwick {

/// The sole owner of an open descriptor.
class FileDescriptor
{
public:
    static constexpr int none = -1;

    FileDescriptor() noexcept = default;

    /// Takes ownership of `number`; -1, a failed call's result, means none.
    explicit FileDescriptor(int number) noexcept : m_number(number) {}
    ~FileDescriptor() { reset(); }

    FileDescriptor(FileDescriptor &&other) noexcept : m_number(std::exchange(other.m_number, none))
    {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    [[nodiscard]] bool isOpen() const noexcept { return m_number >= 0; }

    /// -1 when there is none.
    [[nodiscard]] int number() const noexcept { return m_number; }

    /// A duplicate of the descriptor, closed on exec and above the three standard ones; none, and
    /// `errno` set, on failure.
    [[nodiscard]] FileDescriptor duplicate() const noexcept;

    /// Closes it now. Preserves `errno`.
    void reset() noexcept;

private:
    int m_number = none;
};

/// A pipe whose ends are closed on exec and above the three standard descriptors, so that giving a
/// child its streams never overwrites one end with the other.
struct Pipe
{
    FileDescriptor readEnd;
    FileDescriptor writeEnd;

    /// A new pipe, as large as the system permits: a command that writes its whole output and exits
    /// right away loses what the pipe cannot hold. Throws `std::system_error`.
    [[nodiscard]] static Pipe open();

    /// A pipe for a signal: nothing is written; whoever polls `readEnd` wakes when `writeEnd` is
    /// closed, also if that was before. Throws `std::system_error`.
    [[nodiscard]] static Pipe forSignal();
};

} // namespace Loadwick
