#include "components/ShortcutPass.h"

namespace Loadwick {

void ShortcutPass::setItem(QQuickItem *item)
{
    if (m_item == item)
        return;
    if (m_item)
        m_item->removeEventFilter(this);
    m_item = item;
    if (m_item)
        m_item->installEventFilter(this);
    Q_EMIT itemChanged();
}

bool ShortcutPass::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace Loadwick

#include "moc_ShortcutPass.cpp"
