#include "export/DialogFileSaver.h"

#include <utility>

#include <QQmlEngine>
#include <QWindow>
#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformtheme.h>

#include "shell/FolderUrl.h"
#include "shell/QmlObject.h"

namespace Loadwick {
namespace {

/// The desktops' dialogs ask before a file is replaced; the one that Qt draws itself does not.
bool asksBeforeReplacing()
{
    const QPlatformTheme *theme = QGuiApplicationPrivate::platformTheme();
    return theme != nullptr && theme->usePlatformNativeDialog(QPlatformTheme::FileDialog);
}

QUrl inFolder(const QUrl &folder, const QString &name)
{
    QUrl file = folder;
    file.setPath(folder.path() + QLatin1Char('/') + name);
    return file;
}

} // namespace

DialogFileSaver::DialogFileSaver(QUrl startFolder) : m_startFolder(std::move(startFolder)) {}

void DialogFileSaver::attach(QQmlEngine &engine, QWindow &window)
{
    m_engine = &engine;
    m_window = &window;
}

void DialogFileSaver::open(const Request &request, Chosen chosen)
{
    if (m_chosen || !makeDialog())
        return;
    m_chosen = std::move(chosen);
    const QUrl folder = m_dialog->property("currentFolder").toUrl();
    m_dialog->setProperty("title", request.title);
    m_dialog->setProperty("nameFilters", request.filters);
    m_dialog->setProperty("selectedFile", inFolder(folder, request.name));
    QMetaObject::invokeMethod(m_dialog.get(), "open");
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

bool DialogFileSaver::makeDialog()
{
    if (m_dialog || !m_engine || !m_window)
        return m_dialog != nullptr;
    QString failure;
    m_dialog =
        qmlObject(*m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Loadwick/FileSaverDialog.qml")),
                  {{QStringLiteral("saver"), QVariant::fromValue(this)},
                   {QStringLiteral("parentWindow"), QVariant::fromValue(m_window.data())},
                   {QStringLiteral("currentFolder"), m_startFolder}},
                  failure);
    if (!m_dialog)
        qWarning("%s", qPrintable(failure));
    return m_dialog != nullptr;
}

} // namespace Loadwick
