#include "dialogs/DoubleClick.h"

#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>

namespace Loadwick {

void DoubleClick::takeFromQt(QObject *line)
{
    // The page's own answer is none of the connections that this ends.
    if (auto *button = qobject_cast<QQuickAbstractButton *>(line))
        QObject::disconnect(button, &QQuickAbstractButton::doubleClicked, nullptr, nullptr);
}

} // namespace Loadwick
