#include "dialogs/PlainDialogText.h"

#include <QQmlEngine>

namespace Loadwick {
namespace {

/// The page of ours for one of Qt's own; null when that shows nothing from outside.
const char *replacement(const QString &page)
{
    if (page == QLatin1String("FolderDialogDelegate.qml") ||
        page == QLatin1String("FileDialogDelegate.qml"))
        return "qrc:/qt/qml/Loadwick/PlainDialogLine.qml";
    if (page == QLatin1String("FolderBreadcrumbBar.qml"))
        return "qrc:/qt/qml/Loadwick/PlainDialogPath.qml";
    return nullptr;
}

} // namespace

void PlainDialogText::takeOver(QQmlEngine &engine)
{
    if (engine.findChild<PlainDialogText *>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        engine.addUrlInterceptor(new PlainDialogText(&engine));
}

QUrl PlainDialogText::intercept(const QUrl &page, DataType type)
{
    // A style's own form of a page lies in a folder below.
    if (type != QmlFile || !page.path().contains(QLatin1String("/QtQuick/Dialogs/quickimpl/qml/")))
        return page;
    const char *ours = replacement(page.fileName());
    return ours != nullptr ? QUrl(QLatin1String(ours)) : page;
}

} // namespace Loadwick
