#pragma once

#include <utility>

namespace Loadwick {

/// The one owner of an open descriptor; closes it at its end.
class FileDescriptor
{
public:
    static constexpr int none = -1;

    FileDescriptor() noexcept = default;

    /// Takes over `number`; -1, as a failed call gives it, is none.
    explicit FileDescriptor(int number) noexcept : m_number(number) {}
    ~FileDescriptor() { reset(); }

    FileDescriptor(FileDescriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    [[nodiscard]] bool isOpen() const noexcept { return m_number >= 0; }

    /// -1 when there is none.
    [[nodiscard]] int number() const noexcept { return m_number; }

    /// A second descriptor, closed on exec and above the three standard ones, for what this one has
    /// open; none, and `errno` set, when there is none to be had.
    [[nodiscard]] FileDescriptor duplicate() const noexcept;

    /// Closes it now. `errno` stays as it was.
    void reset() noexcept;

private:
    int m_number = -1;
};

} // namespace Loadwick
