#pragma once

#include <functional>

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QList>
#include <QObject>
#include <QPainter>
#include <QSize>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/PainterItem.h"

namespace Loadwick {

/// Exports charts to files. Such a picture adds a ground, a margin, and above the chart the words
/// that explain its figures outside the program. Lengths are points.
class PictureFrame : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title MEMBER m_title REQUIRED)
    /// Paragraphs below the title.
    Q_PROPERTY(QList<QString> lines MEMBER m_lines REQUIRED)
    Q_PROPERTY(QFont titleFont MEMBER m_titleFont)
    Q_PROPERTY(QFont font MEMBER m_font)
    Q_PROPERTY(QColor textColor MEMBER m_textColor)
    Q_PROPERTY(QColor secondaryTextColor MEMBER m_secondaryTextColor)
    Q_PROPERTY(QColor ground MEMBER m_ground)

public:
    using QObject::QObject;

    /// Produces the bytes of a file; may be called on any thread.
    using Bytes = std::function<QByteArray()>;

    /// The chart as it is now, at twice its size.
    [[nodiscard]] Bytes png(PainterItem &chart) const;

    /// The chart as it is now, in vector graphics.
    [[nodiscard]] Bytes svg(PainterItem &chart) const;

    /// The size of a picture with a chart of that size.
    [[nodiscard]] QSize sizeAround(const QSizeF &chart) const;

    /// Fills a picture of that size, writes the words, and leaves the painter's origin at the
    /// chart's.
    void paint(QPainter &painter, const QSize &size) const;

private:
    [[nodiscard]] QSize sizeWith(const PainterItem &chart) const;
    void paintWith(PainterItem &chart, QPainter &painter) const;
    [[nodiscard]] double headingHeight(double width) const;

    QString m_title;
    QList<QString> m_lines;
    QFont m_titleFont;
    QFont m_font;
    QColor m_textColor;
    QColor m_secondaryTextColor;
    QColor m_ground;
};

} // namespace Loadwick
