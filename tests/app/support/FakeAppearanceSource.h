#pragma once

#include "theme/AppearanceSource.h"

namespace Loadwick {

/// A desktop that wishes what the test says; light and moving at first.
class FakeAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    using AppearanceSource::AppearanceSource;

    [[nodiscard]] bool prefersDark() const override { return m_dark; }
    [[nodiscard]] bool prefersReducedMotion() const override { return m_reducedMotion; }

    void prefer(bool dark, bool reducedMotion)
    {
        m_dark = dark;
        m_reducedMotion = reducedMotion;
        Q_EMIT changed();
    }

private:
    bool m_dark = false;
    bool m_reducedMotion = false;
};

} // namespace Loadwick
