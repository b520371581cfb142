#include "dialogs/FolderLine.h"

#include <QUrl>
#include <QVariant>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>

namespace Loadwick {

void FolderLine::takeFromQt(QObject *line)
{
    // The page's own answer is none of the connections that this ends.
    if (auto *button = qobject_cast<QQuickAbstractButton *>(line))
        QObject::disconnect(button, &QQuickAbstractButton::doubleClicked, nullptr, nullptr);
}

void FolderLine::enter(QObject *line)
{
    if (auto *dialog = line->property("dialog").value<QObject *>())
        dialog->setProperty("currentFolder", line->property("fileUrl"));
}

} // namespace Loadwick
