#include "dialogs/FileKinds.h"

#include <algorithm>

#include <QStringList>
#include <QVariant>
#include <QtGui/qpa/qplatformdialoghelper.h>

namespace Loadwick::FileKinds {
namespace {

/// That of the name, if it is one of the kind's.
QString endingIn(const QString &kind, const QString &name)
{
    const QStringList patterns = QPlatformFileDialogHelper::cleanFilterList(kind);
    for (const QString &pattern : patterns) {
        const QString ending = pattern.mid(1); // without its asterisk
        if (name.endsWith(ending, Qt::CaseInsensitive))
            return name.right(ending.size());
    }
    return {};
}

} // namespace

QString chosenEnding(const QObject &dialog)
{
    const auto *kind = dialog.property("selectedNameFilter").value<QObject *>();
    const QStringList endings =
        kind != nullptr ? kind->property("extensions").toStringList() : QStringList();
    return endings.isEmpty() ? QString() : QLatin1Char('.') + endings.first();
}

int chooseKindOf(const QString &name, const QObject &dialog)
{
    const QStringList kinds = dialog.property("nameFilters").toStringList();
    const auto kind = std::find_if(kinds.begin(), kinds.end(), [&](const QString &words) {
        return !endingIn(words, name).isEmpty();
    });
    const int place = kind == kinds.end() ? 0 : static_cast<int>(kind - kinds.begin());
    if (auto *chosen = dialog.property("selectedNameFilter").value<QObject *>())
        chosen->setProperty("index", place);
    return place;
}

QString endingOf(const QString &name, const QObject &dialog)
{
    const QStringList kinds = dialog.property("nameFilters").toStringList();
    for (const QString &kind : kinds)
        if (const QString ending = endingIn(kind, name); !ending.isEmpty())
            return ending;
    return {};
}

} // namespace Loadwick::FileKinds
