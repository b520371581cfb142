#pragma once

#include <optional>

#include <QColor>
#include <QObject>

namespace Loadwick {

/// What a desktop asks of the look of its programs. A wish is absent where nothing was said about
/// it, which is not the same as a wish for the opposite.
struct DesktopWishes
{
    std::optional<bool> dark = {};          ///< light text on dark ground
    std::optional<bool> reducedMotion = {}; ///< nothing moves for the sake of moving
    std::optional<bool> moreContrast = {};  ///< lines and quiet words stand out
    std::optional<QColor> accent = {};      ///< as the user chose it, readable or not
    std::optional<double> fontPoints = {};  ///< size of the desktop's own font
    std::optional<double> textFactor = {};  ///< multiplies the size of all text

    /// These wishes; those that are absent come from `other`.
    [[nodiscard]] DesktopWishes orElse(const DesktopWishes &other) const;

    /// How much larger than usual text is, from 1 to `largestTextScale`. Desktops come with fonts
    /// of 9 to 11 points; up to there the scale is 1.
    [[nodiscard]] double textScale() const;

    /// 14 points instead of 10; the smallest window has room for no more.
    static constexpr double largestTextScale = 1.4;

    friend bool operator==(const DesktopWishes &, const DesktopWishes &) = default;
};

/// Where the desktop's wishes about the look come from. Lives on the interface thread and never
/// blocks it: what it has not heard yet is absent, and `changed` tells when it has.
class AppearanceSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual DesktopWishes wishes() const = 0;

    [[nodiscard]] bool prefersDark() const { return wishes().dark.value_or(false); }
    [[nodiscard]] bool prefersReducedMotion() const
    {
        return wishes().reducedMotion.value_or(false);
    }
    [[nodiscard]] bool prefersMoreContrast() const { return wishes().moreContrast.value_or(false); }

Q_SIGNALS:
    /// One of the wishes has changed.
    void changed();
};

} // namespace Loadwick
