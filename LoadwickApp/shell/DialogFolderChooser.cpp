#include "shell/DialogFolderChooser.h"

#include <utility>

#include <QQmlEngine>
#include <QWindow>

#include "shell/FolderUrl.h"
#include "shell/QmlObject.h"

namespace Loadwick {

DialogFolderChooser::DialogFolderChooser(QUrl startFolder) : m_startFolder(std::move(startFolder))
{}

void DialogFolderChooser::attach(QQmlEngine &engine, QWindow &window)
{
    m_engine = &engine;
    m_window = &window;
}

void DialogFolderChooser::open(Chosen chosen)
{
    if (m_chosen || !makeDialog())
        return;
    m_chosen = std::move(chosen);
    QMetaObject::invokeMethod(m_dialog.get(), "open");
}

void DialogFolderChooser::accept(const QUrl &folder)
{
    const Chosen chosen = std::exchange(m_chosen, {});
    const auto path = folderPath(folder);
    if (chosen && path)
        chosen(*path);
}

void DialogFolderChooser::reject()
{
    m_chosen = {};
}

bool DialogFolderChooser::makeDialog()
{
    if (m_dialog || !m_engine || !m_window)
        return m_dialog != nullptr;
    QString failure;
    m_dialog =
        qmlObject(*m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Loadwick/FolderChooserDialog.qml")),
                  {{QStringLiteral("chooser"), QVariant::fromValue(this)},
                   {QStringLiteral("parentWindow"), QVariant::fromValue(m_window.data())},
                   {QStringLiteral("currentFolder"), m_startFolder}},
                  failure);
    if (!m_dialog)
        qWarning("%s", qPrintable(failure));
    return m_dialog != nullptr;
}

} // namespace Loadwick
