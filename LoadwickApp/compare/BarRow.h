#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "compare/BarRowPlaces.h"
#include "compare/BarStyle.h"

namespace Loadwick {

/// One row of a bar chart, painted: a name, a figure and a bar on the track of its scale. One item
/// in place of five, because a page of bars has hundreds that come and go as it scrolls. A name
/// that does not fit leaves out its middle, a figure never does.
class BarRow : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Loadwick::BarStyle *style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(Arrangement arrangement MEMBER m_arrangement NOTIFY changed)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QString place MEMBER m_place NOTIFY changed)
    Q_PROPERTY(QString value MEMBER m_value NOTIFY changed)
    Q_PROPERTY(double length MEMBER m_length NOTIFY changed)
    Q_PROPERTY(bool isRecorded MEMBER m_isRecorded NOTIFY changed)
    Q_PROPERTY(QColor fill MEMBER m_fill NOTIFY changed)
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
    /// Nothing is painted without one.
    void setStyle(BarStyle *style);

    /// What a tool tip has to add to what is painted: the name where it is cut short, or with the
    /// place that tells it from its equals. Empty where it has nothing.
    [[nodiscard]] QString tip() const;

    [[nodiscard]] BarRowPlaces places() const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();
    void styleChanged();

private:
    [[nodiscard]] BarRowPlaces unmirroredPlaces() const;
    [[nodiscard]] const QFont &nameFont() const;
    [[nodiscard]] QColor nameColor() const;
    void paintWords(QPainter &painter, const BarRowPlaces &places) const;
    void paintBar(QPainter &painter, const BarRowPlaces &places) const;

    QPointer<BarStyle> m_style;
    Arrangement m_arrangement = Stacked;
    QString m_name;
    QString m_place;
    QString m_value;
    double m_length = 0; ///< of the bar, 0 to 1
    bool m_isRecorded = true;
    QColor m_fill;
};

} // namespace Loadwick
