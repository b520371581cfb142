#pragma once

#include <QAbstractItemModel>
#include <QColor>
#include <QFont>
#include <QList>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// The chart of all categories in one piece, for a file: the page itself makes only the lines that
/// it shows. Its height follows from its lines.
class CombinedPicture : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel *rows READ rows WRITE setRows NOTIFY rowsChanged REQUIRED)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY styleChanged)
    Q_PROPERTY(QFont strongFont MEMBER m_strongFont NOTIFY styleChanged)
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY styleChanged)
    Q_PROPERTY(QColor textColor MEMBER m_textColor NOTIFY styleChanged)
    Q_PROPERTY(QColor secondaryTextColor MEMBER m_secondaryTextColor NOTIFY styleChanged)

public:
    static constexpr int rowHeight = 24;

    explicit CombinedPicture(QQuickItem *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *rows() const { return m_rows; }
    /// Rows as those of `CombinedRows`.
    void setRows(QAbstractItemModel *rows);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void rowsChanged();
    void styleChanged();

private:
    void takeHeight();
    void paintRow(QPainter &painter, const QModelIndex &row, const QRectF &line) const;
    void paintBar(QPainter &painter, const QModelIndex &row, const QRectF &line) const;

    QPointer<QAbstractItemModel> m_rows;
    QFont m_font;
    QFont m_strongFont;
    QList<QColor> m_colors;
    QColor m_textColor;
    QColor m_secondaryTextColor;
};

} // namespace Loadwick
