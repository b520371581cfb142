#pragma once

#include <QObject>

namespace Loadwick {

/// Where the desktop's wishes about the look come from. Lives on the interface thread.
class AppearanceSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the desktop asks for light text on dark ground.
    [[nodiscard]] virtual bool prefersDark() const = 0;
    /// Whether the desktop asks that nothing moves for the sake of moving.
    [[nodiscard]] virtual bool prefersReducedMotion() const = 0;

Q_SIGNALS:
    /// One of the answers has changed.
    void changed();
};

} // namespace Loadwick
