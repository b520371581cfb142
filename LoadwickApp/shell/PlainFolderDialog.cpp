#include "shell/PlainFolderDialog.h"

#include <QUrl>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "shell/PlainDialogParts.h"

namespace Loadwick {

void PlainFolderDialog::takeOver(QQuickPopup &dialog)
{
    auto *taken = dialog.findChild<PlainFolderDialog *>(QString(), Qt::FindDirectChildrenOnly);
    if (taken == nullptr)
        taken = new PlainFolderDialog(dialog);
    taken->chooseShownFolder();
}

PlainFolderDialog::PlainFolderDialog(QQuickPopup &dialog)
    : QObject(&dialog),
      m_dialog(dialog),
      m_list(dialog.findChild<QQuickItem *>(QStringLiteral("folderDialogListView"))),
      m_pathField(PlainDialogParts::partOfPathBar(dialog, "textField")),
      m_button(PlainDialogParts::acceptingButton(dialog))
{
    // By name: Qt tells these signals to QML alone.
    connect(&dialog, SIGNAL(currentFolderChanged(QUrl)), this, SLOT(chooseShownFolder()));
    connect(&dialog, SIGNAL(selectedFolderChanged(QUrl)), this, SLOT(sayWhatIsChosen()));
    if (!m_pathField)
        return;
    connect(m_pathField, &QQuickItem::visibleChanged, this,
            &PlainFolderDialog::leaveHiddenPathField);
    // Where Qt highlighted a line on the way, the field was hidden too early and shows again.
    connect(m_pathField, SIGNAL(accepted()), this, SLOT(focusList()));
}

void PlainFolderDialog::chooseShownFolder()
{
    if (m_list)
        m_list->setProperty("currentIndex", -1);
    if (!m_pathField || !m_pathField->isVisible())
        focusList();
    m_dialog.setProperty("selectedFolder", m_dialog.property("currentFolder"));
    sayWhatIsChosen();
}

void PlainFolderDialog::sayWhatIsChosen()
{
    const QUrl folder = m_dialog.property("selectedFolder").toUrl();
    if (auto *accessible = PlainDialogParts::accessible(m_button))
        accessible->setDescription(folder.toLocalFile());
}

// Qt hides the path field and leaves it the keyboard.
void PlainFolderDialog::leaveHiddenPathField()
{
    if (!m_pathField->isVisible() && m_dialog.isVisible())
        focusList();
}

void PlainFolderDialog::focusList()
{
    if (m_list)
        m_list->forceActiveFocus(Qt::OtherFocusReason);
}

} // namespace Loadwick
