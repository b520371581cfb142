#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <QAbstractItemModel>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QList>
#include <QPointer>

#include "charts/MarkedChart.h"
#include "report/TreemapLayout.h"

namespace Loadwick {

/// The tiles of a treemap in a frame of any size, one per weight. All lengths are points.
class TreemapTiles
{
public:
    /// The minimum size of a tile that shows its name.
    static constexpr double leastNameWidth = 84.0;
    static constexpr double leastNameHeight = 28.0;

    /// A tile as painted, its edges on whole pixels.
    struct Box
    {
        double left;
        double top;
        double width;
        double height;

        friend bool operator==(const Box &, const Box &) = default;
    };

    TreemapTiles() = default;
    explicit TreemapTiles(std::span<const double> weights);

    /// The frame from (0, 0) on; without one all tiles are empty.
    void setFrame(double width, double height) noexcept;

    [[nodiscard]] std::size_t count() const noexcept { return m_shares.size(); }
    [[nodiscard]] TreemapRect tile(std::size_t index) const;
    [[nodiscard]] bool showsName(std::size_t index) const;

    /// The index of the tile at a point, -1 if there is none; tiles have no gaps here.
    [[nodiscard]] int tileAt(double x, double y) const;

    /// The tile on a grid of `pixelsPerPoint`, one point short at the right and the bottom where
    /// another tile follows; a tile too thin to spare it keeps it.
    [[nodiscard]] Box box(std::size_t index, double pixelsPerPoint) const;

private:
    std::vector<TreemapRect> m_shares; ///< of the unit square
    double m_width = 0.0;
    double m_height = 0.0;
};

/// One tile per row of a model, as large as the row's "weight" (a double). The tiles take the
/// colours by position, wrapping around; one that is large enough shows its row's "name", which is
/// read only then. Each tile is a tint inside an outline of its full colour, which sets it off from
/// the ground. The current tile stands out and the others step back.
///
/// All tiles are one image, painted once per size, so that hovering over ten thousand costs no more
/// than over one.
class TreemapChart : public Loadwick::MarkedChart
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel *model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY looksChanged)
    Q_PROPERTY(QColor textColor MEMBER m_textColor NOTIFY looksChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY looksChanged)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY looksChanged)
    /// Opacity of a tile's fill, while no tile is current and while it is; its outline is opaque.
    Q_PROPERTY(qreal restOpacity MEMBER m_restOpacity NOTIFY looksChanged)
    Q_PROPERTY(qreal currentOpacity MEMBER m_currentOpacity NOTIFY looksChanged)
    /// Opacity of the other tiles, outline and fill, while one is current.
    Q_PROPERTY(qreal dimming MEMBER m_dimming NOTIFY looksChanged)

public:
    /// Opacity of the names on the other tiles while one is current; they stay readable.
    static constexpr qreal dimmedNameOpacity = 0.7;

    explicit TreemapChart(QQuickItem *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *model() const { return m_model; }
    /// Not owned; the model may be destroyed first.
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
    QImage m_painted; ///< all tiles at rest; null until painted
};

} // namespace Loadwick
