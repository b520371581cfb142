#include "dialogs/FileKinds.h"

#include <QStringList>
#include <QVariant>
#include <QtGui/qpa/qplatformdialoghelper.h>

namespace Loadwick::FileKinds {

QString chosenEnding(const QObject &dialog)
{
    const auto *kind = dialog.property("selectedNameFilter").value<QObject *>();
    const QStringList endings =
        kind != nullptr ? kind->property("extensions").toStringList() : QStringList();
    return endings.isEmpty() ? QString() : QLatin1Char('.') + endings.first();
}

QString endingOf(const QString &name, const QObject &dialog)
{
    const QStringList kinds = dialog.property("nameFilters").toStringList();
    for (const QString &kind : kinds) {
        const QStringList patterns = QPlatformFileDialogHelper::cleanFilterList(kind);
        for (const QString &pattern : patterns) {
            const QString ending = pattern.mid(1); // without its asterisk
            if (name.endsWith(ending, Qt::CaseInsensitive))
                return name.right(ending.size());
        }
    }
    return {};
}

} // namespace Loadwick::FileKinds
