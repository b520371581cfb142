#pragma once

#include <QAbstractListModel>
#include <QByteArrayList>
#include <QStringList>

namespace Loadwick {

/// Rows of ready-made text for a view. Each row has one text for each of the names that were given
/// at the start, under which the view's delegate asks for it.
class TextRows final : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit TextRows(QByteArrayList names, QObject *parent = nullptr);

    /// Each row's texts in the order of the names.
    void setRows(const QList<QStringList> &rows);
    [[nodiscard]] const QList<QStringList> &rows() const noexcept { return m_rows; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QByteArrayList m_names;
    QList<QStringList> m_rows;
};

} // namespace Loadwick
