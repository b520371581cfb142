#include "base/ListOf.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Loadwick {

RowList::RowList(QHash<int, QByteArray> roleNames, QObject *parent)
    : QAbstractListModel(parent), m_roleNames(std::move(roleNames))
{}

QVariant RowList::value(int row, const QString &role) const
{
    return hasIndex(row, 0) ? data(index(row), m_roleNames.key(role.toUtf8(), -1)) : QVariant();
}

QString RowList::text(int row, const QString &role) const
{
    return value(row, role).toString();
}

void RowList::copy(int row, const QString &role) const
{
    if (hasIndex(row, 0))
        QGuiApplication::clipboard()->setText(text(row, role));
}

} // namespace Loadwick

#include "moc_ListOf.cpp"
