#include "dialogs/ListKeys.h"

#include <algorithm>
#include <optional>

#include <QKeyEvent>
#include <QQuickItem>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace Loadwick {
namespace {

int linesOfAPage(const QQuickItem &list)
{
    const auto *line = list.property("currentItem").value<QQuickItem *>();
    const double height = line != nullptr ? line->height() : 0;
    return height > 0 ? std::max(1, static_cast<int>(list.height() / height) - 1) : 1;
}

/// Beyond the ends, too; nothing for a key that is none of these.
std::optional<int> lineAfterKey(int key, const QQuickItem &list)
{
    const int line = list.property("currentIndex").toInt();
    switch (key) {
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return list.property("count").toInt() - 1;
    case Qt::Key_PageUp:
        return line - linesOfAPage(list);
    case Qt::Key_PageDown:
        return line + linesOfAPage(list);
    default:
        return std::nullopt;
    }
}

} // namespace

void ListKeys::takeOver(QQuickPopup &dialog)
{
    if (dialog.findChild<ListKeys *>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        new ListKeys(dialog);
}

ListKeys::ListKeys(QQuickPopup &dialog) : QObject(&dialog), m_list(*dialog.contentItem())
{
    // At its own pace a long list would be under way for seconds.
    m_list.setProperty("highlightMoveDuration", 0);
    // The item of the whole dialog gets each key that the list left alone.
    m_list.parentItem()->installEventFilter(this);
}

bool ListKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const int count = m_list.property("count").toInt();
    if (m_list.hasActiveFocus() && count > 0)
        if (const auto line = lineAfterKey(static_cast<const QKeyEvent *>(event)->key(), m_list)) {
            m_list.setProperty("currentIndex", std::clamp(*line, 0, count - 1));
            return true;
        }
    return QObject::eventFilter(watched, event);
}

} // namespace Loadwick
