#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QWindow>

namespace Loadwick {

/// Whether other windows cover a window whole, as an X server reports it, which Qt 6.4 does not
/// ask. A compositing manager hides this from the server: beneath one, no window ever counts as
/// covered.
class WindowCover : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    /// That of an exposed window, to which it belongs. It knows of what has changed since the first
    /// call.
    [[nodiscard]] static WindowCover &of(QWindow &window);

    /// Always false on another platform than X11.
    [[nodiscard]] bool isWhole() const noexcept { return m_isWhole; }

Q_SIGNALS:
    void changed();

private:
    explicit WindowCover(QWindow &window);
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;

    WId m_window = 0;
    bool m_isWhole = false;
};

} // namespace Loadwick
