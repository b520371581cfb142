#include "dialogs/PlainDialogTabs.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickcontainer_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "dialogs/PlainDialogParts.h"

namespace Loadwick {
namespace {

bool hasFocusItself(const QQuickItem *item)
{
    return item != nullptr && item->window() != nullptr &&
           item->window()->activeFocusItem() == item;
}

QQuickItem *itemOf(const QQuickPopup &dialog, const char *type)
{
    return qobject_cast<QQuickItem *>(PlainDialogParts::partOf(dialog, type));
}

QQuickKeyNavigationAttached *stepsOf(QQuickItem *item)
{
    return qobject_cast<QQuickKeyNavigationAttached *>(
        qmlAttachedPropertiesObject<QQuickKeyNavigationAttached>(item));
}

void lead(QQuickItem *from, QQuickItem *to)
{
    // In this order: a way back that Qt takes from the way there gives way to any later one.
    stepsOf(to)->setBacktab(from);
    stepsOf(from)->setTab(to);
}

} // namespace

void PlainDialogTabs::takeOver(QQuickPopup &dialog)
{
    if (dialog.findChild<PlainDialogTabs *>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        new PlainDialogTabs(dialog);
}

PlainDialogTabs::PlainDialogTabs(QQuickPopup &dialog)
    : QObject(&dialog),
      m_list(dialog.contentItem()),
      m_path(itemOf(dialog, "QQuickFolderBreadcrumbBar")),
      m_buttons(itemOf(dialog, "QQuickDialogButtonBox")),
      m_button(PlainDialogParts::acceptingButton(dialog))
{
    if (!m_list || !m_path || !m_buttons || !m_button)
        return;
    leadThroughList(dialog);
    offerButtonFirst();
    connect(m_list, &QQuickItem::activeFocusChanged, this, &PlainDialogTabs::offerButtonFirst);
    connect(m_path, &QQuickItem::activeFocusChanged, this, &PlainDialogTabs::enterPath);
    connect(m_buttons, &QQuickItem::activeFocusChanged, this, &PlainDialogTabs::enterButtons);
}

// The last part of the path leads into the list by itself.
void PlainDialogTabs::leadThroughList(const QQuickPopup &dialog)
{
    QQuickItem *name = PlainDialogParts::nameField(dialog);
    QQuickItem *behind = name != nullptr ? name : m_button.data();
    lead(m_path, m_list);
    lead(m_list, behind);
    if (name != nullptr)
        lead(name, itemOf(dialog, "QQuickComboBox"));
}

// Else the way from the list ends at the button that had the keyboard last.
void PlainDialogTabs::offerButtonFirst()
{
    if (m_button && !m_buttons->hasActiveFocus())
        m_button->setFocus(true, Qt::TabFocusReason);
}

void PlainDialogTabs::enterPath()
{
    if (!hasFocusItself(m_path))
        return;
    auto *path = qobject_cast<QQuickContainer *>(m_path.data());
    QQuickItem *part = path->itemAt(path->count() - 1);
    if (part != nullptr)
        part->forceActiveFocus(Qt::BacktabFocusReason);
}

void PlainDialogTabs::enterButtons()
{
    if (hasFocusItself(m_buttons) && m_button && m_button->isEnabled())
        m_button->forceActiveFocus(Qt::TabFocusReason);
}

} // namespace Loadwick
