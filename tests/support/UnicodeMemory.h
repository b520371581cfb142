#pragma once

namespace Loadwick {

/// While it lives, the Unicode library gets memory for that many requests only. One at a time, and
/// only while no other thread uses that library.
class UnicodeMemory
{
public:
    explicit UnicodeMemory(long grants);
    ~UnicodeMemory();
    UnicodeMemory(const UnicodeMemory &) = delete;
    UnicodeMemory &operator=(const UnicodeMemory &) = delete;

    /// Whether a request was refused.
    [[nodiscard]] bool ranOut() const noexcept;
};

} // namespace Loadwick
