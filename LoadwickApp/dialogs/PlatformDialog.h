#pragma once

#include <memory>

#include <QObject>
#include <QPointer>
#include <QUrl>

class QQmlEngine;
class QWindow;

namespace Loadwick {

/// One of the platform's own dialogs over the application's window. It is made at its first use.
/// Belongs to the interface thread.
class PlatformDialog
{
public:
    /// `page` is the QML file of the dialog, which has a property `asker` for who takes its
    /// answers. `startFolder` is shown at the first use, the folder last shown at the later ones.
    PlatformDialog(QString page, QUrl startFolder);

    /// Engine and window outlive this object's use.
    void attach(QQmlEngine &engine, QWindow &window);

    /// The dialog; null, with a warning, when it cannot be made, and before there is a window.
    [[nodiscard]] QObject *madeFor(QObject &asker);

    /// Shows the dialog that was made.
    void open();

private:
    QString m_page;
    QUrl m_startFolder;
    QPointer<QQmlEngine> m_engine;
    QPointer<QWindow> m_window;
    std::unique_ptr<QObject> m_dialog;
};

} // namespace Loadwick
