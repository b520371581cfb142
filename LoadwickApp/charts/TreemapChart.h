#pragma once

#include <QAbstractItemModel>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QList>
#include <QPointer>

#include "charts/MarkedChart.h"
#include "charts/TreemapTiles.h"

namespace Loadwick {

/// One tile per row of a model, as large as the row's "weight" (a double). The tiles take the
/// colours by position, wrapping around; one that is large enough shows its row's "name", which is
/// asked for only then. Each tile is thinned inside an outline of its full colour, which tells it
/// from the ground. The current tile stands out and the others step back.
///
/// All tiles are one painting, made once per size, so that ten thousand cost no more than one to
/// move over.
class TreemapChart : public Loadwick::MarkedChart
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel *model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY looksChanged)
    Q_PROPERTY(QColor textColor MEMBER m_textColor NOTIFY looksChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY looksChanged)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY looksChanged)
    /// Of a tile's fill, while none is current and while it is; its outline is opaque.
    Q_PROPERTY(qreal restOpacity MEMBER m_restOpacity NOTIFY looksChanged)
    Q_PROPERTY(qreal currentOpacity MEMBER m_currentOpacity NOTIFY looksChanged)
    /// What is left of the other tiles, outline and fill, while one is current.
    Q_PROPERTY(qreal dimming MEMBER m_dimming NOTIFY looksChanged)

public:
    explicit TreemapChart(QQuickItem *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *model() const { return m_model; }
    /// The model belongs to somebody else and may go first.
    void setModel(QAbstractItemModel *model);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void modelChanged();
    void looksChanged();

protected:
    [[nodiscard]] int markCount() const override;
    [[nodiscard]] int markAt(const QPointF &point) const override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    struct Ink
    {
        qreal fillOpacity;
        qreal lineWidth; ///< points
    };

    void readRows();
    void repaintTiles();
    [[nodiscard]] QString nameOf(std::size_t tile) const;
    [[nodiscard]] QColor colorOf(std::size_t tile) const;
    [[nodiscard]] QImage paintedTiles(qreal pixelsPerPoint) const;
    void paintTile(QPainter &painter, std::size_t tile, const Ink &ink) const;
    void paintNames(QPainter &painter) const;

    QPointer<QAbstractItemModel> m_model;
    QList<QColor> m_colors;
    QColor m_textColor = Qt::black;
    QFont m_font;
    qreal m_radius = 3.0;
    qreal m_restOpacity = 0.5;
    qreal m_currentOpacity = 0.7;
    qreal m_dimming = 0.5;
    TreemapTiles m_tiles;
    QImage m_painted; ///< all tiles at rest, in pixels; null until they are painted
};

} // namespace Loadwick
