#pragma once

#include <QObject>

#include "theme/DesktopWishes.h"

namespace Loadwick {

/// Where the desktop's wishes about the look come from. Lives on the interface thread, which it
/// never holds up: what it has not heard yet is absent, and `changed` tells when it has.
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
