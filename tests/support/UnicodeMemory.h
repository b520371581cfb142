#pragma once

namespace Loadwick {

/// Grants the Unicode library that many requests for memory while it lives, and refuses the rest.
/// One at a time, and only where no other thread asks for text.
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
