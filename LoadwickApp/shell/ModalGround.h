#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// Everything behind the modal sheets of a window, as one pane. While a sheet is open, it is out of
/// reach of assistive technology, the pointer and the keyboard.
class ModalGround : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QQuickItem::QQuickItem;

    /// Makes the program's accessibility tree respect grounds. Call it once, before the first one.
    static void install();

    Q_INVOKABLE bool isCovered() const;

    /// Whether the item is on a covered ground. A client that found it before can still address it.
    [[nodiscard]] static bool hides(const QQuickItem &item);
};

} // namespace Loadwick
