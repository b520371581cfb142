#include "dialogs/PlainSaveDialog.h"

#include <QDir>
#include <QUrl>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "base/FolderUrl.h"
#include "dialogs/FileKinds.h"
#include "dialogs/PlainDialogParts.h"

namespace Loadwick {
namespace {

QString localPath(const QQuickPopup &dialog, const char *property)
{
    return QDir::cleanPath(dialog.property(property).toUrl().toLocalFile());
}

/// A name with another of the endings on offer gets that of the kind that is chosen.
QString ofChosenKind(QString name, const QQuickPopup &dialog)
{
    const QString ending = FileKinds::endingOf(name, dialog);
    const QString chosen = FileKinds::chosenEnding(dialog);
    if (!ending.isEmpty() && !chosen.isEmpty() && ending.compare(chosen, Qt::CaseInsensitive) != 0)
        name.replace(name.size() - ending.size(), ending.size(), chosen);
    return name;
}

} // namespace

void PlainSaveDialog::takeOver(QQuickPopup &dialog)
{
    auto *taken = dialog.findChild<PlainSaveDialog *>(QString(), Qt::FindDirectChildrenOnly);
    if (taken == nullptr)
        taken = new PlainSaveDialog(dialog);
    taken->takeSuggestedName();
}

PlainSaveDialog::PlainSaveDialog(QQuickPopup &dialog)
    : QObject(&dialog),
      m_dialog(dialog),
      m_field(PlainDialogParts::nameField(dialog)),
      m_list(dialog.findChild<QQuickItem *>(QStringLiteral("fileDialogListView"))),
      m_files(m_list ? m_list->property("model").value<QAbstractItemModel *>() : nullptr)
{
    // By name: Qt tells these signals to QML alone.
    connect(&dialog, SIGNAL(currentFolderChanged(QUrl)), this, SLOT(keepName()));
    connect(&dialog, SIGNAL(selectedFileChanged(QUrl)), this, SLOT(takeNameOfLine()));
    if (m_files) {
        m_files->setProperty("showDirsFirst", true);
        connect(m_files, SIGNAL(statusChanged()), this, SLOT(keepLine()));
    }
    if (auto *kind = dialog.property("selectedNameFilter").value<QObject *>())
        connect(kind, SIGNAL(extensionsChanged(QStringList)), this, SLOT(takeKind()));
}

// Qt highlights a line by its number in a list of its own, which is sorted in another way.
void PlainSaveDialog::keepLine()
{
    if (!m_list || !m_files)
        return;
    const QUrl file = m_dialog.property("selectedFile").toUrl();
    const QString name = m_name;
    const QString typedPath = m_typedPath;
    // With a line highlighted, a list that was filled anew now takes its first one.
    QMetaObject::invokeMethod(m_list, "forceLayout");
    m_list->setProperty("currentIndex", PlainDialogParts::lineOf(file, *m_files));
    m_dialog.setProperty("selectedFile", file);
    m_name = name;
    m_typedPath = typedPath;
}

void PlainSaveDialog::takeSuggestedName()
{
    keepLine(); // that of an earlier opening may be another one's by now
    m_suggested = m_field ? m_field->property("text").toString() : QString();
    m_name = m_suggested;
    const int kind = FileKinds::chooseKindOf(m_suggested, m_dialog);
    if (QObject *kinds = PlainDialogParts::partOf(m_dialog, "QQuickComboBox"))
        kinds->setProperty("currentIndex", kind);
    m_typedPath.clear();
    // Each opening takes the answers of an earlier one off the field.
    connect(m_field, SIGNAL(textEdited()), this, SLOT(takeTypedName()), Qt::UniqueConnection);
}

void PlainSaveDialog::takeTypedName()
{
    leaveLine();
    m_name = m_field->property("text").toString().section(QLatin1Char('/'), -1);
    m_typedPath = localPath(m_dialog, "selectedFile");
}

void PlainSaveDialog::takeNameOfLine()
{
    const auto *line = m_list ? m_list->property("currentItem").value<QQuickItem *>() : nullptr;
    if (line == nullptr || line->property("fileIsDir").toBool())
        return;
    if (line->property("file") != m_dialog.property("selectedFile"))
        return;
    m_name = line->property("fileName").toString();
    m_typedPath.clear();
}

void PlainSaveDialog::keepName()
{
    if (!m_dialog.isVisible())
        return;
    if (isShownBecauseTyped())
        m_name = m_suggested;
    leaveLine();
    const QUrl folder = m_dialog.property("currentFolder").toUrl();
    m_dialog.setProperty("selectedFile", m_name.isEmpty() ? QUrl() : fileUrl(folder, m_name));
}

void PlainSaveDialog::takeKind()
{
    leaveLine();
    const bool isPath = m_field && m_field->property("text").toString().contains(QLatin1Char('/'));
    if (!m_dialog.isVisible() || isPath)
        return;
    m_suggested = ofChosenKind(m_suggested, m_dialog);
    const QString name = ofChosenKind(m_name, m_dialog);
    if (name == m_name)
        return;
    m_name = name;
    m_dialog.setProperty("selectedFile",
                         fileUrl(m_dialog.property("currentFolder").toUrl(), m_name));
}

// Else Qt takes the first line's name as soon as the list is filled anew.
void PlainSaveDialog::leaveLine()
{
    if (m_list)
        m_list->setProperty("currentIndex", -1);
}

bool PlainSaveDialog::isShownBecauseTyped() const
{
    return !m_typedPath.isEmpty() && m_typedPath == localPath(m_dialog, "currentFolder");
}

} // namespace Loadwick
