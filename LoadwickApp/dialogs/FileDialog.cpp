#include "dialogs/FileDialog.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QChildEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QSplitter>
#include <QThread>
#include <QTimer>
#include <QTreeView>

#include "base/FolderUrl.h"

namespace Loadwick {
namespace {

constexpr QSize firstSize(760, 480);
constexpr std::chrono::milliseconds loopEnd(50); // by then a closed menu has left its event loop

/// ".png" for "PNG picture (*.png)".
QString endingOf(const QString &kind)
{
    return kind.section(QLatin1Char('*'), -1).chopped(1);
}

/// Qt's dialog gives its bookmarks a tenth of its width, and truncates dates.
void widenColumns(const FileDialog &dialog)
{
    if (auto *columns = dialog.findChild<QSplitter *>())
        columns->setSizes({firstSize.width() / 4, firstSize.width()});
    if (auto *list = dialog.findChild<QTreeView *>())
        list->header()->setStretchLastSection(true);
}

/// Null in the desktop's dialogs.
QLineEdit *nameField(const FileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

} // namespace

FileDialog::FileDialog(QWindow &window) : m_loopLevel(QThread::currentThread()->loopLevel())
{
    // The desktop's dialogs, too, are transient to this one's window.
    (void)winId();
    windowHandle()->setTransientParent(&window);
    setOption(DontResolveSymlinks);
    resize(firstSize);
    move(window.geometry().center() - rect().center());
}

std::optional<std::filesystem::path> FileDialog::chosenPath() const
{
    const QList<QUrl> urls = selectedUrls();
    return m_addressed || urls.isEmpty() ? m_addressed : folderPath(urls.constFirst());
}

QString FileDialog::missingEnding(const QString &name) const
{
    const QStringList kinds = nameFilters();
    const bool hasOne = std::any_of(kinds.begin(), kinds.end(), [&name](const QString &kind) {
        return name.endsWith(endingOf(kind), Qt::CaseInsensitive);
    });
    return hasOne ? QString() : endingOf(selectedNameFilter());
}

void FileDialog::accept()
{
    if (m_isDone)
        return;
    QLineEdit *field = nameField(*this);
    if (field != nullptr && takesAddress(field->text()))
        return done(Accepted);
    // Before the dialog asks whether to replace a file of the complete name.
    if (field != nullptr && acceptMode() == AcceptSave && !field->text().isEmpty())
        if (const QString file = selectedFiles().value(0); !QFileInfo(file).isDir())
            field->setText(field->text() + missingEnding(file));
    QFileDialog::accept();
}

/// The dialog is deleted later: until then a held key reaches it again.
void FileDialog::done(int result)
{
    if (std::exchange(m_isDone, true))
        return;
    QFileDialog::done(result);
    for (QWidget *child : findChildren<QWidget *>())
        if (child->isWindow() && child->isVisible())
            child->close();
    deleteAfterItsLoops();
}

/// Its menus and questions are on the stack, and its children. They wait in event loops of their
/// own, in which a screen reader can still press the dialog's buttons.
void FileDialog::deleteAfterItsLoops()
{
    if (QThread::currentThread()->loopLevel() <= m_loopLevel)
        deleteLater();
    else
        QTimer::singleShot(loopEnd, this, &FileDialog::deleteAfterItsLoops);
}

/// A typed path can name a folder that is not UTF-8, which Qt's dialog does not list. Asks the disk
/// on this thread, as Qt's dialog does for every name.
bool FileDialog::takesAddress(const QString &text)
{
    m_addressed.reset();
    if (fileMode() == Directory && text.startsWith(QLatin1String("file:")))
        m_addressed = folderPath(QUrl(text));
    if (m_addressed && !isFolder(*m_addressed))
        m_addressed.reset();
    return m_addressed.has_value();
}

void FileDialog::childEvent(QChildEvent *event)
{
    // Its questions contain file names, which are not markup.
    if (auto *question = qobject_cast<QMessageBox *>(event->child()); question && event->polished())
        question->setTextFormat(Qt::PlainText);
    QFileDialog::childEvent(event);
}

void FileDialog::showEvent(QShowEvent *event)
{
    QFileDialog::showEvent(event);
    widenColumns(*this);
    if (QLineEdit *field = nameField(*this))
        field->selectAll();
}

FileDialog *FileDialogOpener::newDialog()
{
    if (!m_window || (m_dialog && !m_dialog->isDone()))
        return nullptr;
    m_dialog = new FileDialog(*m_window);
    m_dialog->setDirectoryUrl(m_folder);
    QObject::connect(m_dialog, &QDialog::finished, m_dialog,
                     [this] { m_folder = m_dialog->directoryUrl(); });
    return m_dialog;
}

} // namespace Loadwick

#include "moc_FileDialog.cpp"
