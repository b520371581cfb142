#pragma once

#include <optional>

#include <QColor>
#include <QObject>

namespace Loadwick {

/// What the desktop asks of a program's appearance. An absent value means no preference, not the
/// opposite one.
struct DesktopPreferences
{
    std::optional<bool> dark = {};          ///< light text on dark ground
    std::optional<bool> reducedMotion = {}; ///< no decorative motion
    std::optional<bool> moreContrast = {};  ///< stronger lines and quiet words
    std::optional<QColor> accent = {};      ///< as the user chose it, readable or not
    std::optional<double> fontPoints = {};  ///< size of the desktop's own font
    std::optional<double> textFactor = {};  ///< multiplies the size of all text

    /// These preferences, with absent ones taken from `other`.
    [[nodiscard]] DesktopPreferences orElse(const DesktopPreferences &other) const;

    /// The scale of text, from 1 to `largestTextScale`. Desktops come with fonts of 9 to 11 points;
    /// up to there the scale is 1.
    [[nodiscard]] double textScale() const;

    /// As far as desktops offer it.
    static constexpr double largestTextScale = 2.0;

    friend bool operator==(const DesktopPreferences &, const DesktopPreferences &) = default;
};

/// A source of the desktop's preferences. Lives on the interface thread and never blocks it: a
/// preference is absent until it is known, and `changed` announces it.
class AppearanceSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual DesktopPreferences preferences() const = 0;

    [[nodiscard]] bool prefersDark() const { return preferences().dark.value_or(false); }
    [[nodiscard]] bool prefersReducedMotion() const
    {
        return preferences().reducedMotion.value_or(false);
    }
    [[nodiscard]] bool prefersMoreContrast() const
    {
        return preferences().moreContrast.value_or(false);
    }

Q_SIGNALS:
    /// A preference has changed.
    void changed();
};

} // namespace Loadwick
