#pragma once

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/PainterItem.h"

namespace Loadwick {

/// What the bars of one chart share: fonts, colours, the columns that align the figures of all
/// rows, and the reading direction.
class BarStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QFont nameFont MEMBER nameFont NOTIFY changed)
    Q_PROPERTY(QFont valueFont MEMBER valueFont NOTIFY changed)
    Q_PROPERTY(QFont headingFont MEMBER headingFont NOTIFY changed)
    Q_PROPERTY(QColor text MEMBER text NOTIFY changed)
    Q_PROPERTY(QColor secondaryText MEMBER secondaryText NOTIFY changed)
    Q_PROPERTY(QColor track MEMBER track NOTIFY changed)
    Q_PROPERTY(qreal nameWidth MEMBER nameWidth NOTIFY changed)
    Q_PROPERTY(qreal valueWidth MEMBER valueWidth NOTIFY changed)
    Q_PROPERTY(bool isMirrored MEMBER isMirrored NOTIFY changed)

public:
    using QObject::QObject;

    QFont nameFont;
    QFont valueFont;
    QFont headingFont; ///< of a row that names those below it
    QColor text;
    QColor secondaryText;
    QColor track;            ///< behind a bar, as long as a bar can be
    qreal nameWidth = 0;     ///< pixels, where name, bar and figure share a line
    qreal valueWidth = 0;    ///< the same
    bool isMirrored = false; ///< lines begin at the right

Q_SIGNALS:
    void changed();
};

/// The parts of a bar chart's row; a part that a row lacks is empty.
struct BarRowLayout
{
    QRectF name;
    QRectF value;
    QRectF track; ///< as long as a bar can be
    QRectF bar;

    /// Name and figure over the bar. The figure takes its `valueWidth`, the name the rest.
    [[nodiscard]] static BarRowLayout stacked(const QSizeF &row, qreal lineHeight, qreal valueWidth,
                                              double length);

    /// Name, bar and figure on one line, in columns. `length` is how much of the track the bar
    /// fills, 0 to 1.
    [[nodiscard]] static BarRowLayout inLine(const QSizeF &row, qreal nameWidth, qreal valueWidth,
                                             double length);

    /// A name alone, at the bottom, close to the rows that it names.
    [[nodiscard]] static BarRowLayout heading(const QSizeF &row, qreal lineHeight);

    /// The same row, mirrored for right-to-left reading.
    [[nodiscard]] BarRowLayout mirrored(qreal rowWidth) const;
};

/// One row of a bar chart, painted: a name, a figure and a bar on the track of its scale. One item
/// rather than five, because a page of bars has hundreds that come and go as it scrolls. A name
/// that does not fit is elided in the middle, a figure never.
class BarRow : public Loadwick::PainterItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Loadwick::BarStyle *style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(Arrangement arrangement MEMBER arrangement NOTIFY changed)
    Q_PROPERTY(QString name MEMBER name NOTIFY changed)
    Q_PROPERTY(QString path MEMBER path NOTIFY changed)
    Q_PROPERTY(QString value MEMBER value NOTIFY changed)
    Q_PROPERTY(double length MEMBER length NOTIFY changed)
    Q_PROPERTY(bool isRecorded MEMBER isRecorded NOTIFY changed)
    Q_PROPERTY(QColor fill MEMBER fill NOTIFY changed)
    Q_PROPERTY(QString tip READ tip NOTIFY changed)

public:
    enum Arrangement
    {
        Stacked, ///< name and figure over the bar
        InLine,  ///< name, bar and figure in columns
        Heading  ///< a name alone
    };
    Q_ENUM(Arrangement)

    explicit BarRow(QQuickItem *parent = nullptr);

    [[nodiscard]] BarStyle *style() const { return m_style; }
    /// Paints nothing without one.
    void setStyle(BarStyle *style);

    /// What a tool tip adds to the row: the whole name if it is elided, or the name with the path
    /// that tells it from its namesakes. Empty if there is nothing to add.
    [[nodiscard]] QString tip() const;

    [[nodiscard]] BarRowLayout layout() const;

    void paint(QPainter *painter) override;

    Arrangement arrangement = Stacked;
    QString name;
    QString path; ///< of the repository of that name; empty for a category
    QString value;
    double length = 0; ///< of the bar, 0 to 1
    bool isRecorded = true;
    QColor fill;

Q_SIGNALS:
    void changed();
    void styleChanged();

private:
    [[nodiscard]] BarRowLayout unmirroredLayout() const;
    [[nodiscard]] const QFont &nameFont() const;
    [[nodiscard]] QColor nameColor() const;
    void paintWords(QPainter &painter, const BarRowLayout &layout) const;
    void paintBar(QPainter &painter, const BarRowLayout &layout) const;

    QPointer<BarStyle> m_style;
};

} // namespace Loadwick
