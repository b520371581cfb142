#include "components/Sight.h"

#include <utility>

#include "components/WindowCover.h"

namespace Loadwick {

Sight::Sight(QQuickItem *item) : QObject(item), m_item(item)
{
    connect(item, &QQuickItem::visibleChanged, this, &Sight::look);
    connect(item, &QQuickItem::windowChanged, this, &Sight::followWindow);
    followWindow();
}

Sight *Sight::qmlAttachedProperties(QObject *object)
{
    auto *item = qobject_cast<QQuickItem *>(object);
    return item ? new Sight(item) : nullptr;
}

// A window has no signal for its exposure.
bool Sight::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Expose)
        look();
    return QObject::eventFilter(watched, event);
}

void Sight::followWindow()
{
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = m_item->window();
    if (m_window)
        m_window->installEventFilter(this);
    look();
}

bool Sight::isCovered()
{
    const WindowCover &cover = WindowCover::of(*m_window);
    connect(&cover, &WindowCover::changed, this, &Sight::look, Qt::UniqueConnection);
    return cover.isWhole();
}

void Sight::look()
{
    const bool isSeen = m_window && m_window->isExposed() && m_item->isVisible() && !isCovered();
    if (std::exchange(m_isSeen, isSeen) != isSeen)
        Q_EMIT isSeenChanged();
}

} // namespace Loadwick

#include "moc_Sight.cpp"
