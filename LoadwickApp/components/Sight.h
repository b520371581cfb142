#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// Whether an item can be seen, so that nothing moves that nobody sees: it is visible, and its
/// window is exposed, which a minimised one is not, and not covered, where the platform tells.
class Sight : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Attached to items.")
    QML_ATTACHED(Loadwick::Sight)
    Q_PROPERTY(bool isSeen READ isSeen NOTIFY isSeenChanged)

public:
    /// Belongs to `item`.
    explicit Sight(QQuickItem *item);

    /// Null if the object is no item.
    static Sight *qmlAttachedProperties(QObject *object);

    [[nodiscard]] bool isSeen() const noexcept { return m_isSeen; }
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void isSeenChanged();

private:
    void followWindow();
    [[nodiscard]] bool isCovered();
    void look();

    QQuickItem *m_item;
    QPointer<QQuickWindow> m_window;
    bool m_isSeen = false;
};

} // namespace Loadwick
