#include "dialogs/PlainDialogLook.h"

#include <QQmlEngine>
#include <QUrl>
#include <QVariant>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "base/QmlObject.h"
#include "dialogs/PlainDialogParts.h"

namespace Loadwick {
namespace {

constexpr auto objectName = "plainDialogDress";

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

/// `page` is of ours, and describes what belongs to the part.
void dress(QQmlEngine &engine, QObject &part, const QString &page)
{
    QString failure;
    auto dress =
        qmlObject(engine, QUrl(QStringLiteral("qrc:/qt/qml/Loadwick/") + page),
                  {{QStringLiteral("part"), QVariant::fromValue<QObject *>(&part)}}, failure);
    if (!dress)
        return qWarning("%s", qPrintable(failure));
    dress->setObjectName(QLatin1String(objectName));
    dress.release()->setParent(&part);
}

} // namespace

void PlainDialogLook::takeOver(QQuickPopup &dialog)
{
    QQmlEngine *engine = qmlEngine(&dialog);
    const auto *worn = dialog.findChild<QObject *>(QLatin1String(objectName));
    if (engine == nullptr || worn != nullptr)
        return;
    const QObjectList parts = partsWithAPalette(dialog);
    for (QObject *part : parts)
        dress(*engine, *part, QStringLiteral("PlainDialogPalette.qml"));
    dress(*engine, *dialog.contentItem(), QStringLiteral("PlainDialogList.qml"));
}

} // namespace Loadwick
