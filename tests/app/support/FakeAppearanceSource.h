#pragma once

#include "theme/AppearanceSource.h"

namespace Loadwick {

/// A desktop with the wishes that a test sets; none at first.
class FakeAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    using AppearanceSource::AppearanceSource;

    [[nodiscard]] DesktopWishes wishes() const override { return m_wishes; }

    void wish(const DesktopWishes &wishes)
    {
        m_wishes = wishes;
        Q_EMIT changed();
    }
    void prefer(bool dark, bool reducedMotion)
    {
        wish({.dark = dark, .reducedMotion = reducedMotion});
    }

private:
    DesktopWishes m_wishes;
};

} // namespace Loadwick
