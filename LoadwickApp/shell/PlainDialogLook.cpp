#include "shell/PlainDialogLook.h"

#include <QQmlEngine>
#include <QUrl>
#include <QVariant>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "shell/PlainDialogParts.h"
#include "shell/QmlObject.h"

namespace Loadwick {
namespace {

constexpr auto objectName = "plainDialogPalette";

// What stands below the list inherits no palette from the dialog, nor does the list of a box.
QObjectList partsWithAPalette(QQuickPopup &dialog)
{
    QObjectList parts{&dialog};
    for (QObject *part : dialog.findChildren<QObject *>())
        if (part->inherits("QQuickLabel") || part->inherits("QQuickTextField") ||
            part->inherits("QQuickComboBox"))
            parts.append(part);
    if (const QObject *box = PlainDialogParts::partOf(dialog, "QQuickComboBox"))
        parts.append(box->property("popup").value<QQuickPopup *>());
    return parts;
}

void colour(QQmlEngine &engine, QObject &part)
{
    QString failure;
    auto palette =
        qmlObject(engine, QUrl(QStringLiteral("qrc:/qt/qml/Loadwick/PlainDialogPalette.qml")),
                  {{QStringLiteral("part"), QVariant::fromValue<QObject *>(&part)}}, failure);
    if (!palette)
        return qWarning("%s", qPrintable(failure));
    palette->setObjectName(QLatin1String(objectName));
    palette.release()->setParent(&part);
}

} // namespace

void PlainDialogLook::takeOver(QQuickPopup &dialog)
{
    QQmlEngine *engine = qmlEngine(&dialog);
    const auto *palette = dialog.findChild<QObject *>(QLatin1String(objectName));
    if (engine == nullptr || palette != nullptr)
        return;
    const QObjectList parts = partsWithAPalette(dialog);
    for (QObject *part : parts)
        colour(*engine, *part);
}

} // namespace Loadwick
