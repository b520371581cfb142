#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// Lets the window's shortcuts through a focused item. A read-only text edit of Qt 6.4 claims every
/// key, even those that it ignores, so no shortcut works while it has the focus. Other keys still
/// reach the item.
class ShortcutPass : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *item READ item WRITE setItem NOTIFY itemChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item);
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void itemChanged();

private:
    QPointer<QQuickItem> m_item;
};

} // namespace Loadwick
