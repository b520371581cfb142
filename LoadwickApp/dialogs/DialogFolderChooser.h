#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include "dialogs/FolderChooser.h"
#include "dialogs/PlatformDialog.h"

namespace Loadwick {

/// The platform's own folder dialog, over the application's window. It is made at its first use.
class DialogFolderChooser final : public QObject, public FolderChooser
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")

public:
    /// `startFolder` is shown at the first use, the folder last shown at the later ones.
    explicit DialogFolderChooser(QUrl startFolder);

    /// Engine and window outlive this object's use.
    void attach(QQmlEngine &engine, QWindow &window) { m_dialog.attach(engine, window); }

    void open(Chosen chosen) override;

    /// The dialog's answers.
    Q_INVOKABLE void accept(const QUrl &folder);
    Q_INVOKABLE void reject();

private:
    PlatformDialog m_dialog;
    Chosen m_chosen;
};

} // namespace Loadwick
