#pragma once

#include <optional>

#include <QColor>

namespace Loadwick {

/// What a desktop asks of the look of its programs. A wish is absent where nothing was said about
/// it, which is not the same as a wish for the opposite.
struct DesktopWishes
{
    std::optional<bool> dark = {};          ///< light text on dark ground
    std::optional<bool> reducedMotion = {}; ///< nothing moves for the sake of moving
    std::optional<bool> moreContrast = {};  ///< lines and quiet words stand out
    std::optional<QColor> accent = {};      ///< as the user chose it, readable or not

    /// These wishes, and those of `other` about which they say nothing.
    [[nodiscard]] DesktopWishes orElse(const DesktopWishes &other) const;

    friend bool operator==(const DesktopWishes &, const DesktopWishes &) = default;
};

} // namespace Loadwick
