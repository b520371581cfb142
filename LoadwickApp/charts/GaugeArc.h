#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// The ring of a gauge that fills clockwise from its lower left to its lower right end. It is as
/// large as the item lets it be, and has no words of its own.
class GaugeArc : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// 0 to 100; what lies beyond is painted as the end.
    Q_PROPERTY(qreal value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(qreal thickness READ thickness WRITE setThickness NOTIFY thicknessChanged)
    Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY tintChanged)
    /// Of the part that is not filled.
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY trackChanged)

public:
    explicit GaugeArc(QQuickItem *parent = nullptr);

    [[nodiscard]] qreal value() const { return m_value; }
    void setValue(qreal value);
    [[nodiscard]] qreal thickness() const { return m_thickness; }
    void setThickness(qreal thickness);
    [[nodiscard]] QColor tint() const { return m_tint; }
    void setTint(const QColor &tint);
    [[nodiscard]] QColor track() const { return m_track; }
    void setTrack(const QColor &track);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void valueChanged();
    void thicknessChanged();
    void tintChanged();
    void trackChanged();

private:
    void drawArc(QPainter &painter, const QColor &color, double span) const;

    qreal m_value = 0;
    qreal m_thickness = 8;
    QColor m_tint = Qt::black;
    QColor m_track = Qt::transparent;
};

} // namespace Loadwick
