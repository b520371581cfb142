#include "export/DialogFileSaver.h"

#include <algorithm>
#include <utility>

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformdialoghelper.h>
#include <QtGui/qpa/qplatformtheme.h>

#include "probe/PathText.h"
#include "shell/FolderUrl.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

/// The desktops' dialogs ask before a file is replaced; the one that Qt draws itself does not.
bool asksBeforeReplacing()
{
    const QPlatformTheme *theme = QGuiApplicationPrivate::platformTheme();
    return theme != nullptr && theme->usePlatformNativeDialog(QPlatformTheme::FileDialog);
}

/// That of the kind of file which is chosen in the dialog, with its dot; empty for none.
QString chosenEnding(const QObject &dialog)
{
    const auto *kind = dialog.property("selectedNameFilter").value<QObject *>();
    const QStringList endings =
        kind != nullptr ? kind->property("extensions").toStringList() : QStringList();
    return endings.isEmpty() ? QString() : QLatin1Char('.') + endings.first();
}

/// Whether the name ends like one of the kinds of file that the dialog offers. Another dot in it is
/// no ending: the "2" of "notes v1.2" names no kind of file.
bool hasEnding(const std::filesystem::path &file, const QObject &dialog)
{
    const QString name = qtText(pathText(file.filename()));
    const QStringList kinds = dialog.property("nameFilters").toStringList();
    return std::any_of(kinds.begin(), kinds.end(), [&name](const QString &kind) {
        const QStringList patterns = QPlatformFileDialogHelper::cleanFilterList(kind);
        return std::any_of(patterns.begin(), patterns.end(), [&name](const QString &pattern) {
            return name.endsWith(pattern.mid(1), Qt::CaseInsensitive); // without its asterisk
        });
    });
}

} // namespace

DialogFileSaver::DialogFileSaver(QUrl startFolder)
    : m_dialog(QStringLiteral("FileSaverDialog.qml"), std::move(startFolder))
{}

void DialogFileSaver::open(const Request &request, Chosen chosen)
{
    QObject *const dialog = m_chosen ? nullptr : m_dialog.madeFor(*this);
    if (dialog == nullptr)
        return;
    m_chosen = std::move(chosen);
    const QUrl folder = dialog->property("currentFolder").toUrl();
    dialog->setProperty("title", request.title);
    dialog->setProperty("nameFilters", request.filters);
    dialog->setProperty("selectedFile", fileUrl(folder, request.name));
    m_dialog.open();
}

void DialogFileSaver::accept(const QUrl &file)
{
    const Chosen chosen = std::exchange(m_chosen, {});
    const QObject *const dialog = m_dialog.madeFor(*this);
    auto path = folderPath(file);
    if (!chosen || !path || dialog == nullptr)
        return;
    const bool isWhole = !path->has_filename() || hasEnding(*path, *dialog); // or names a folder
    const QString missing = isWhole ? QString() : chosenEnding(*dialog);
    *path += missing.toStdString();
    // Nobody was asked about a file of the longer name.
    chosen({.file = *path, .mayReplace = missing.isEmpty() && asksBeforeReplacing()});
}

void DialogFileSaver::reject()
{
    m_chosen = {};
}

} // namespace Loadwick
