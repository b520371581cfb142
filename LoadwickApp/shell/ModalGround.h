#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// What lies behind the modal sheets of a window. While one is open, assistive technology finds
/// nothing in here, as the pointer and the keyboard do.
class ModalGround : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QQuickItem::QQuickItem;

    /// Makes the program's accessibility tree look at grounds. Call it once, before the first one.
    static void install();

    Q_INVOKABLE bool isCovered() const;

    /// Whether the item stands on a covered ground. Who found it before can still ask it to act.
    [[nodiscard]] static bool hides(const QQuickItem &item);
};

} // namespace Loadwick
