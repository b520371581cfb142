#pragma once

#include <memory>

#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include "export/FileSaver.h"

class QQmlEngine;
class QWindow;

namespace Loadwick {

/// The platform's own dialog for saving, over the application's window. It is made at its first
/// use.
class DialogFileSaver final : public QObject, public FileSaver
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")

public:
    /// `startFolder` is shown at the first use, the folder last shown at the later ones.
    explicit DialogFileSaver(QUrl startFolder);

    /// Engine and window outlive this object's use.
    void attach(QQmlEngine &engine, QWindow &window);

    void open(const Request &request, Chosen chosen) override;

    /// The dialog's answers.
    Q_INVOKABLE void accept(const QUrl &file);
    Q_INVOKABLE void reject();

private:
    [[nodiscard]] bool makeDialog();

    QUrl m_startFolder;
    QPointer<QQmlEngine> m_engine;
    QPointer<QWindow> m_window;
    std::unique_ptr<QObject> m_dialog;
    Chosen m_chosen;
};

} // namespace Loadwick
