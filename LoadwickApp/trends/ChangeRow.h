#pragma once

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/PainterItem.h"
#include "components/TrendMark.h"

namespace Loadwick {

/// What the rows of a table of changes share: fonts, colours, the columns that align their figures,
/// and the reading direction.
class ChangeStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QFont font MEMBER font NOTIFY changed)
    Q_PROPERTY(QFont totalFont MEMBER totalFont NOTIFY changed)
    Q_PROPERTY(QFont noteFont MEMBER noteFont NOTIFY changed)
    Q_PROPERTY(QFont headingFont MEMBER headingFont NOTIFY changed)
    Q_PROPERTY(QColor text MEMBER text NOTIFY changed)
    Q_PROPERTY(QColor secondaryText MEMBER secondaryText NOTIFY changed)
    Q_PROPERTY(QColor grewText MEMBER grewText NOTIFY changed)
    Q_PROPERTY(QColor shrankText MEMBER shrankText NOTIFY changed)
    Q_PROPERTY(QColor grewBar MEMBER grewBar NOTIFY changed)
    Q_PROPERTY(QColor shrankBar MEMBER shrankBar NOTIFY changed)
    Q_PROPERTY(QColor line MEMBER line NOTIFY changed)
    Q_PROPERTY(qreal figureWidth MEMBER figureWidth NOTIFY changed)
    Q_PROPERTY(qreal trackWidth MEMBER trackWidth NOTIFY changed)
    Q_PROPERTY(bool isNarrow MEMBER isNarrow NOTIFY changed)
    Q_PROPERTY(bool isMirrored MEMBER isMirrored NOTIFY changed)

public:
    using QObject::QObject;

    QFont font;
    QFont totalFont;
    QFont noteFont;
    QFont headingFont;
    QColor text;
    QColor secondaryText;
    QColor grewText;
    QColor shrankText;
    QColor grewBar;
    QColor shrankBar;
    QColor line;             ///< the common zero of the bars, and below the totals
    qreal figureWidth = 0;   ///< pixels, of each of the three columns of figures
    qreal trackWidth = 0;    ///< pixels, of the bars where a row has one line
    bool isNarrow = false;   ///< two lines for each row
    bool isMirrored = false; ///< lines begin at the right

Q_SIGNALS:
    void changed();
};

/// The parts of a row of changes.
struct ChangeRowLayout
{
    QRectF name; ///< and the note
    QRectF before;
    QRectF after;
    QRectF difference;
    QRectF track; ///< of the bar: its zero is in the middle

    /// All on one line.
    [[nodiscard]] static ChangeRowLayout wide(const QSizeF &row, qreal figureWidth,
                                              qreal trackWidth);

    /// Name and difference over the bar and the other two figures. The name gets what the
    /// difference leaves.
    [[nodiscard]] static ChangeRowLayout narrow(const QSizeF &row, qreal figureWidth,
                                                qreal differenceWidth);

    /// The same row, mirrored for right-to-left reading.
    [[nodiscard]] ChangeRowLayout mirrored(qreal rowWidth) const;

    /// The bar of a difference, from -1 to 1; growth points in the reading direction.
    [[nodiscard]] QRectF bar(double length, bool isMirrored) const;
};

/// One row of a table of changes, painted: a name and its note, two figures, their difference, and
/// a bar from a common zero. One item rather than ten, because another choice replaces all rows at
/// once. A name that does not fit is elided in the middle, a figure never.
class ChangeRow : public Loadwick::PainterItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Loadwick::ChangeStyle *style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(QString name MEMBER name NOTIFY changed)
    Q_PROPERTY(QString note MEMBER note NOTIFY changed)
    Q_PROPERTY(QString before MEMBER before NOTIFY changed)
    Q_PROPERTY(QString after MEMBER after NOTIFY changed)
    Q_PROPERTY(QString difference MEMBER difference NOTIFY changed)
    Q_PROPERTY(int kind MEMBER kind NOTIFY changed)
    Q_PROPERTY(double length MEMBER length NOTIFY changed)
    Q_PROPERTY(bool isTotal MEMBER isTotal NOTIFY changed)
    Q_PROPERTY(bool isHeading MEMBER isHeading NOTIFY changed)
    Q_PROPERTY(QString tip READ tip NOTIFY changed)

public:
    explicit ChangeRow(QQuickItem *parent = nullptr);

    [[nodiscard]] ChangeStyle *style() const { return m_style; }
    /// Paints nothing without one.
    void setStyle(ChangeStyle *style);

    /// The name and its note where they are elided; else empty.
    [[nodiscard]] QString tip() const;

    [[nodiscard]] ChangeRowLayout layout() const;

    void paint(QPainter *painter) override;

    QString name;
    QString note;
    QString before;
    QString after;
    QString difference;
    int kind = TrendKind::Unchanged; ///< of the difference
    double length = 0;               ///< of the bar, -1 to 1
    bool isTotal = false;            ///< stands out, has no bar
    bool isHeading = false;          ///< names the columns

Q_SIGNALS:
    void changed();
    void styleChanged();

private:
    [[nodiscard]] const QFont &font() const;
    [[nodiscard]] QColor differenceColor() const;
    void paintNames(QPainter &painter, const QRectF &box) const;
    void paintFigures(QPainter &painter, const ChangeRowLayout &layout) const;
    void paintBar(QPainter &painter, const ChangeRowLayout &layout) const;

    QPointer<ChangeStyle> m_style;
};

} // namespace Loadwick
