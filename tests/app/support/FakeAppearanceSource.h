#pragma once

#include "theme/AppearanceSource.h"

namespace Loadwick {

/// A desktop with the preferences that a test sets; none at first.
class FakeAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    using AppearanceSource::AppearanceSource;

    [[nodiscard]] DesktopPreferences preferences() const override { return m_preferences; }

    void setPreferences(const DesktopPreferences &preferences)
    {
        m_preferences = preferences;
        Q_EMIT changed();
    }
    void prefer(bool dark, bool reducedMotion)
    {
        setPreferences({.dark = dark, .reducedMotion = reducedMotion});
    }

private:
    DesktopPreferences m_preferences;
};

} // namespace Loadwick
