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
    std::optional<double> fontPoints = {};  ///< of the desktop's own words
    std::optional<double> textFactor = {};  ///< by which all words are to be larger than they say

    /// These wishes, and those of `other` about which they say nothing.
    [[nodiscard]] DesktopWishes orElse(const DesktopWishes &other) const;

    /// How much larger than usual words are to be, from 1 to `largestTextScale`. Desktops come with
    /// fonts of 9 to 11 points; up to there, ours are as they are.
    [[nodiscard]] double textScale() const;

    /// Words of 14 points where 10 are usual; the smallest window has room for no more.
    static constexpr double largestTextScale = 1.4;

    friend bool operator==(const DesktopWishes &, const DesktopWishes &) = default;
};

} // namespace Loadwick
