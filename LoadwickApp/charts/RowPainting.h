#pragma once

#include <QColor>
#include <QPainter>
#include <QPointer>
#include <QQuickItem>
#include <QRectF>
#include <QString>

/// What the painted rows of bars have in common.
namespace Loadwick::RowPainting {

inline constexpr qreal barHeight = 8;
inline constexpr qreal leastBar = 2; ///< a single token is visible
inline constexpr qreal cornerRadius = 4;

/// The same part of a row of that width, mirrored for right-to-left reading.
[[nodiscard]] QRectF mirroredIn(qreal rowWidth, const QRectF &box);

/// Writes one line, in the middle of the box's height. The side is not mirrored.
void write(QPainter &painter, const QRectF &box, Qt::Alignment side, const QString &words);

/// Fills a bar whose corners are as round as its width allows.
void fillBar(QPainter &painter, const QRectF &bar, const QColor &color);

/// Makes a row follow another style, null for none: the row is repainted whenever the style has
/// changed. False if the row has that style already.
template<typename Style>
bool follow(QQuickItem &row, QPointer<Style> &followed, Style *style)
{
    if (followed == style)
        return false;
    if (followed)
        followed->disconnect(&row);
    followed = style;
    if (style)
        QObject::connect(style, &Style::changed, &row, [&row] { row.update(); });
    row.update();
    return true;
}

} // namespace Loadwick::RowPainting
