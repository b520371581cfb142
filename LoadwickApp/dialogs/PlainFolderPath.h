#pragma once

#include <filesystem>
#include <memory>

#include <QObject>
#include <QPointer>
#include <QUrl>

#include "model/TaskDispatcher.h"

class QQuickPopup;
class QQuickTextInput;

namespace Loadwick {

/// What is typed into the path field of the folder dialog that Qt draws inside the window: a folder
/// from the root, from the home folder or below the one that is shown. Qt by itself takes files,
/// too, and forgets what is not there. Belongs to the dialog.
class PlainFolderPath final : public QObject
{
    Q_OBJECT

public:
    /// Without a field nothing is ever typed.
    PlainFolderPath(QQuickPopup &dialog, QQuickTextInput *field);

Q_SIGNALS:
    /// The dialog shows the folder that was typed.
    void entered();

private:
    void take();
    void ask(const QString &text, const std::filesystem::path &path);
    void answer(const QString &text, const std::filesystem::path &path, bool isThere);
    void enter(const QUrl &folder);
    void object(const QString &words);

    QQuickPopup &m_dialog;
    QPointer<QQuickTextInput> m_field;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
};

} // namespace Loadwick
