#include "export/DialogFileSaver.h"

#include <utility>

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformtheme.h>

#include "shell/FolderUrl.h"

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
    dialog->setProperty("selectedFile", fileUrl(folder, request.name));
    m_dialog.open();
}

void DialogFileSaver::accept(const QUrl &file)
{
    const Chosen chosen = std::exchange(m_chosen, {});
    const auto path = folderPath(file);
    if (chosen && path)
        chosen({.file = *path, .mayReplace = asksBeforeReplacing()});
}

void DialogFileSaver::reject()
{
    m_chosen = {};
}

} // namespace Loadwick
