#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include "dialogs/PlatformDialog.h"
#include "export/FileSaver.h"

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
    void attach(QQmlEngine &engine, QWindow &window) { m_dialog.attach(engine, window); }

    void open(const Request &request, Chosen chosen) override;

    /// The dialog's answers.
    Q_INVOKABLE void accept(const QUrl &file);
    Q_INVOKABLE void reject();

private:
    PlatformDialog m_dialog;
    Chosen m_chosen;
};

} // namespace Loadwick
