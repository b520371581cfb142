#include "dialogs/PlainFolderDialog.h"

#include <QUrl>
#include <QVariant>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquicktextinput_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "dialogs/PlainDialogParts.h"
#include "dialogs/PlainFolderPath.h"

namespace Loadwick {
namespace {

constexpr int nothing = -1; // is highlighted

} // namespace

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
      m_folders(m_list ? m_list->property("model").value<QAbstractItemModel *>() : nullptr),
      m_pathField(PlainDialogParts::partOfPathBar(dialog, "textField")),
      m_button(PlainDialogParts::acceptingButton(dialog))
{
    // By name: Qt tells these signals to QML alone.
    connect(&dialog, SIGNAL(currentFolderChanged(QUrl)), this, SLOT(chooseShownFolder()));
    connect(&dialog, SIGNAL(selectedFolderChanged(QUrl)), this, SLOT(sayWhatIsChosen()));
    if (m_folders)
        connect(m_folders, SIGNAL(statusChanged()), this, SLOT(keepChoice()));
    if (!m_pathField)
        return;
    connect(m_pathField, &QQuickItem::visibleChanged, this,
            &PlainFolderDialog::leaveHiddenPathField);
    auto *path = new PlainFolderPath(dialog, qobject_cast<QQuickTextInput *>(m_pathField.data()));
    path->setParent(this);
    connect(path, &PlainFolderPath::entered, this, &PlainFolderDialog::chooseShownFolder);
    connect(path, &PlainFolderPath::entered, this, &PlainFolderDialog::focusList);
}

void PlainFolderDialog::chooseShownFolder()
{
    if (!m_pathField || !m_pathField->isVisible())
        focusList();
    choose(m_dialog.property("currentFolder").toUrl(), nothing);
    sayWhatIsChosen();
}

// The model empties and fills itself when a folder comes or goes, and then also tells that it is
// ready; the list follows later, by highlighting its first line.
void PlainFolderDialog::keepChoice()
{
    const QUrl chosen = m_dialog.property("selectedFolder").toUrl();
    QMetaObject::invokeMethod(m_list, "forceLayout");
    const int line = PlainDialogParts::lineOf(chosen, *m_folders);
    choose(line == nothing ? m_dialog.property("currentFolder").toUrl() : chosen, line);
}

void PlainFolderDialog::choose(const QUrl &folder, int line)
{
    if (m_list)
        m_list->setProperty("currentIndex", line);
    m_dialog.setProperty("selectedFolder", folder);
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
