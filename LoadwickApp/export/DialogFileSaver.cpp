#include "export/DialogFileSaver.h"

#include <utility>

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformtheme.h>

#include "base/FolderUrl.h"
#include "base/QtText.h"
#include "dialogs/FileKinds.h"
#include "text/PathText.h"

namespace Loadwick {
namespace {

/// The desktops' dialogs ask before a file is replaced; the one that Qt draws itself does not.
bool asksBeforeReplacing()
{
    const QPlatformTheme *theme = QGuiApplicationPrivate::platformTheme();
    return theme != nullptr && theme->usePlatformNativeDialog(QPlatformTheme::FileDialog);
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
    (void)FileKinds::chooseKindOf(request.name, *dialog);
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
    const QString name = qtText(pathText(path->filename())); // empty for a folder
    const bool isWhole = name.isEmpty() || !FileKinds::endingOf(name, *dialog).isEmpty();
    const QString missing = isWhole ? QString() : FileKinds::chosenEnding(*dialog);
    *path += missing.toStdString();
    // Nobody was asked about a file of the longer name.
    chosen({.file = *path, .mayReplace = missing.isEmpty() && asksBeforeReplacing()});
}

void DialogFileSaver::reject()
{
    m_chosen = {};
}

} // namespace Loadwick
