#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// The part of a `ListOf` that QML sees, whatever the type of its rows.
class RowList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the presenters.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    [[nodiscard]] int count() const { return rowCount(); }

    /// A row's value for a role; empty if there is no such row.
    [[nodiscard]] QVariant value(int row, const QString &role) const;
    Q_INVOKABLE [[nodiscard]] QString text(int row, const QString &role) const;

    /// Copies that text to the clipboard; a no-op if there is no such row.
    Q_INVOKABLE void copy(int row, const QString &role) const;

    [[nodiscard]] QHash<int, QByteArray> roleNames() const final { return m_roleNames; }

Q_SIGNALS:
    void countChanged();

protected:
    RowList(QHash<int, QByteArray> roleNames, QObject *parent);

private:
    QHash<int, QByteArray> m_roleNames;
};

/// A list model over rows that are plain values. A role is the name that a delegate binds to, and a
/// function of the row. The function runs only when a view reads the row, so unread rows cost
/// nothing. `Rows` is any sequence with `size()` and `operator[]`.
template<typename Row, typename Rows = std::vector<Row>>
class ListOf : public RowList
{
public:
    struct Role
    {
        const char *name;
        std::function<QVariant(const Row &row)> value;
    };

    explicit ListOf(std::vector<Role> roles, QObject *parent = nullptr)
        : RowList(namesOf(roles), parent), m_roles(std::move(roles))
    {}

    [[nodiscard]] const Rows &rows() const noexcept { return m_rows; }

    void setRows(Rows rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        Q_EMIT countChanged();
    }

    /// Like `setRows`, but views keep their items if the number of rows is unchanged.
    void updateRows(Rows rows)
    {
        if (rows.size() != m_rows.size())
            return setRows(std::move(rows));
        m_rows = std::move(rows);
        if (count() > 0)
            Q_EMIT dataChanged(index(0), index(count() - 1));
    }

    void updateRow(std::size_t row, Row value)
    {
        m_rows[row] = std::move(value);
        const QModelIndex place = index(static_cast<int>(row));
        Q_EMIT dataChanged(place, place);
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const final
    {
        const auto position = static_cast<std::size_t>(role - Qt::UserRole);
        if (!checkIndex(index, CheckIndexOption::IndexIsValid) || position >= m_roles.size())
            return {};
        return m_roles[position].value(m_rows[static_cast<std::size_t>(index.row())]);
    }

private:
    [[nodiscard]] static QHash<int, QByteArray> namesOf(const std::vector<Role> &roles)
    {
        QHash<int, QByteArray> names;
        for (const Role &role : roles)
            names.insert(Qt::UserRole + static_cast<int>(names.size()), role.name);
        return names;
    }

    std::vector<Role> m_roles;
    Rows m_rows;
};

} // namespace Loadwick
