#include "icons/SymbolCatalog.h"

#include <QMap>

namespace Loadwick::SymbolCatalog {
namespace {

const QMap<QString, QString> &rolesBySystemName()
{
    static const QMap<QString, QString> roles = {
        {QStringLiteral("square.grid.2x2"), QStringLiteral("overview")},
        {QStringLiteral("chart.line.uptrend.xyaxis"), QStringLiteral("trends")},
        {QStringLiteral("rectangle.split.2x1"), QStringLiteral("compare")},
        {QStringLiteral("folder"), QStringLiteral("choose-repository")},
        {QStringLiteral("folder.fill"), QStringLiteral("repository")},
        {QStringLiteral("circle"), QStringLiteral("ready")},
        {QStringLiteral("arrow.triangle.2.circlepath"), QStringLiteral("scanning")},
        {QStringLiteral("exclamationmark.triangle"), QStringLiteral("failure")},
        {QStringLiteral("exclamationmark.triangle.fill"), QStringLiteral("failed")},
        {QStringLiteral("checkmark.circle.fill"), QStringLiteral("complete")},
        {QStringLiteral("magnifyingglass"), QStringLiteral("nothing-yet")},
        {QStringLiteral("waveform.path.ecg"), QStringLiteral("scan")},
        {QStringLiteral("doc.on.doc"), QStringLiteral("copy")},
        {QStringLiteral("arrow.up.right"), QStringLiteral("grew")},
        {QStringLiteral("arrow.down.right"), QStringLiteral("shrank")},
        {QStringLiteral("equal"), QStringLiteral("unchanged")},
        {QStringLiteral("trash"), QStringLiteral("clear")},
        {QStringLiteral("scalemass"), QStringLiteral("weight")},
        {QStringLiteral("gauge"), QStringLiteral("measure")},
        {QStringLiteral("arrow.up"), QStringLiteral("pointer")},
        {QStringLiteral("chevron.right"), QStringLiteral("closed")},
        {QStringLiteral("chevron.down"), QStringLiteral("open")},
    };
    return roles;
}

} // namespace

QString file(const QString &name)
{
    const QString role = rolesBySystemName().value(name, name);
    return roles().contains(role) ? QStringLiteral(":/qt/qml/Loadwick/icons/%1.svg").arg(role)
                                  : QString();
}

QStringList systemNames()
{
    return rolesBySystemName().keys();
}

QStringList roles()
{
    QStringList roles = rolesBySystemName().values();
    roles.sort();
    return roles;
}

} // namespace Loadwick::SymbolCatalog
