#include "compare/CombinedPicture.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>

#include "compare/CombinedRows.h"

namespace Loadwick {
namespace {

constexpr qreal nameWidth = 200;
constexpr qreal valueWidth = 88;
constexpr qreal gap = 12;
constexpr qreal pictureBarHeight = 8;

void writeWords(QPainter &painter, const QRectF &place, Qt::Alignment alignment,
                const QString &words)
{
    const QString fitting =
        QFontMetricsF(painter.font()).elidedText(words, Qt::ElideMiddle, place.width());
    painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     fitting);
}

} // namespace

// A window paints what is hidden too, and of many repositories this is a picture of a gigabyte.
CombinedPicture::CombinedPicture(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setFlag(ItemHasContents, false);
}

void CombinedPicture::setRows(QAbstractItemModel *rows)
{
    if (m_rows == rows)
        return;
    m_rows = rows;
    if (m_rows)
        connect(m_rows, &QAbstractItemModel::modelReset, this, &CombinedPicture::takeHeight);
    takeHeight();
    Q_EMIT rowsChanged();
}

void CombinedPicture::takeHeight()
{
    setHeight(m_rows ? rowHeight * m_rows->rowCount() : 0);
}

void CombinedPicture::paint(QPainter *painter)
{
    for (int row = 0; m_rows && row < m_rows->rowCount(); ++row)
        paintRow(*painter, m_rows->index(row, 0), QRectF(0, row * rowHeight, width(), rowHeight));
}

void CombinedPicture::paintRow(QPainter &painter, const QModelIndex &row, const QRectF &line) const
{
    const bool isCategory = row.data(CombinedRows::IsCategory).toBool();
    painter.setFont(isCategory ? m_strongFont : m_font);
    painter.setPen(isCategory ? m_textColor : m_secondaryTextColor);
    QRectF name = line;
    if (!isCategory)
        name.setWidth(nameWidth);
    writeWords(painter, name, Qt::AlignLeft, row.data(CombinedRows::Title).toString());
    if (!isCategory)
        paintBar(painter, row, line);
}

void CombinedPicture::paintBar(QPainter &painter, const QModelIndex &row, const QRectF &line) const
{
    const QRectF value(line.right() - valueWidth, line.top(), valueWidth, line.height());
    painter.setPen(row.data(CombinedRows::IsRecorded).toBool() ? m_textColor
                                                               : m_secondaryTextColor);
    writeWords(painter, value, Qt::AlignRight, row.data(CombinedRows::Value).toString());
    const qreal start = nameWidth + gap;
    const qreal longest = std::max(0.0, value.left() - gap - start);
    const QRectF bar(start, line.center().y() - pictureBarHeight / 2,
                     longest * row.data(CombinedRows::Length).toReal(), pictureBarHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_colors.value(row.data(CombinedRows::Column).toInt() %
                                    std::max<qsizetype>(1, m_colors.size())));
    painter.drawRoundedRect(bar, pictureBarHeight / 2, pictureBarHeight / 2);
}

} // namespace Loadwick

#include "moc_CombinedPicture.cpp"
