#include "dialogs/PlatformDialog.h"

#include <utility>

#include <QQmlEngine>
#include <QQuickWindow>

#include "base/QmlObject.h"
#include "dialogs/PlainDialog.h"
#include "dialogs/PlainDialogText.h"

namespace Loadwick {

PlatformDialog::PlatformDialog(QString page, QUrl startFolder)
    : m_page(std::move(page)), m_startFolder(std::move(startFolder))
{}

void PlatformDialog::attach(QQmlEngine &engine, QWindow &window)
{
    m_engine = &engine;
    m_window = &window;
}

QObject *PlatformDialog::madeFor(QObject &asker)
{
    if (m_dialog || !m_engine || !m_window)
        return m_dialog.get();
    PlainDialogText::takeOver(*m_engine);
    QString failure;
    m_dialog = qmlObject(*m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Loadwick/") + m_page),
                         {{QStringLiteral("asker"), QVariant::fromValue(&asker)},
                          {QStringLiteral("parentWindow"), QVariant::fromValue(m_window.data())},
                          {QStringLiteral("currentFolder"), m_startFolder}},
                         failure);
    if (!m_dialog)
        qWarning("%s", qPrintable(failure));
    return m_dialog.get();
}

void PlatformDialog::open()
{
    if (!m_dialog)
        return;
    QMetaObject::invokeMethod(m_dialog.get(), "open");
    if (auto *window = qobject_cast<QQuickWindow *>(m_window.data()))
        PlainDialog::makeReachable(*window);
}

} // namespace Loadwick
