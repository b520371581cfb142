#include "charts/TreemapChart.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "report/TreemapLayout.h"

namespace Loadwick {
namespace {

constexpr double gap = 1.0;
/// A thinner tile would lose too much of itself to the gap.
constexpr double leastWithGap = 3.0;

/// A tile along one axis.
struct Stretch
{
    double start;
    double length;
};

Stretch snapped(Stretch exact, double frame, double pixelsPerPoint)
{
    const auto onGrid = [pixelsPerPoint](double value) {
        return std::round(value * pixelsPerPoint) / pixelsPerPoint;
    };
    const double start = onGrid(exact.start);
    const double end = onGrid(exact.start + exact.length);
    const bool isLast = end >= onGrid(frame);
    const double length = end - start;
    return {.start = start, .length = isLast || length < leastWithGap ? length : length - gap};
}

/// Smaller tiles have square corners: rounding would leave nothing of them.
constexpr qreal leastRounded = 8.0;
constexpr qreal namePadding = 8.0;
constexpr qreal restLineWidth = 1.0;
constexpr qreal currentLineWidth = 2.0;

QRectF rectOf(const TreemapTiles::Box &box)
{
    return {box.left, box.top, box.width, box.height};
}

/// -1 for a name that the model lacks.
int roleOf(const QAbstractItemModel &model, const QByteArray &name)
{
    return model.roleNames().key(name, -1);
}

} // namespace

TreemapTiles::TreemapTiles(std::span<const double> weights)
    : m_shares(TreemapLayout::layout(weights))
{}

void TreemapTiles::setFrame(double width, double height) noexcept
{
    m_width = std::max(width, 0.0);
    m_height = std::max(height, 0.0);
}

TreemapRect TreemapTiles::tile(std::size_t index) const
{
    const TreemapRect &share = m_shares.at(index);
    return {.x = share.x * m_width,
            .y = share.y * m_height,
            .width = share.width * m_width,
            .height = share.height * m_height};
}

bool TreemapTiles::showsName(std::size_t index) const
{
    const TreemapRect rect = tile(index);
    return rect.width >= leastNameWidth && rect.height >= leastNameHeight;
}

int TreemapTiles::tileAt(double x, double y) const
{
    const auto holds = [unitX = x / m_width, unitY = y / m_height](const TreemapRect &share) {
        return unitX >= share.x && unitX < share.x + share.width && unitY >= share.y &&
               unitY < share.y + share.height;
    };
    const auto found = std::find_if(m_shares.begin(), m_shares.end(), holds);
    return found == m_shares.end() ? -1 : static_cast<int>(found - m_shares.begin());
}

TreemapTiles::Box TreemapTiles::box(std::size_t index, double pixelsPerPoint) const
{
    const TreemapRect rect = tile(index);
    const Stretch across = snapped({rect.x, rect.width}, m_width, pixelsPerPoint);
    const Stretch down = snapped({rect.y, rect.height}, m_height, pixelsPerPoint);
    return {.left = across.start, .top = down.start, .width = across.length, .height = down.length};
}

TreemapChart::TreemapChart(QQuickItem *parent) : MarkedChart(parent)
{
    connect(this, &TreemapChart::looksChanged, this, &TreemapChart::repaintTiles);
}

void TreemapChart::setModel(QAbstractItemModel *model)
{
    if (m_model == model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (m_model)
        connect(m_model, &QAbstractItemModel::modelReset, this, &TreemapChart::readRows);
    readRows();
    Q_EMIT modelChanged();
}

void TreemapChart::paint(QPainter *painter)
{
    const qreal pixelsPerPoint = painter->deviceTransform().m11();
    if (m_painted.isNull() || m_painted.devicePixelRatio() != pixelsPerPoint)
        m_painted = paintedTiles(pixelsPerPoint);
    const bool isAtRest = currentMark() < 0;
    painter->save();
    if (!isAtRest) {
        const QRectF hole =
            rectOf(m_tiles.box(static_cast<std::size_t>(currentMark()), pixelsPerPoint));
        painter->setClipRegion(QRegion(boundingRect().toAlignedRect()) - hole.toAlignedRect());
    }
    painter->setOpacity(isAtRest ? 1.0 : m_dimming);
    painter->drawImage(QPointF(0.0, 0.0), m_painted);
    painter->restore();
    if (!isAtRest)
        paintTile(*painter, static_cast<std::size_t>(currentMark()),
                  {.fillOpacity = m_currentOpacity, .lineWidth = currentLineWidth});
    paintNames(*painter);
}

int TreemapChart::markCount() const
{
    return static_cast<int>(m_tiles.count());
}

int TreemapChart::markAt(const QPointF &point) const
{
    return m_tiles.tileAt(point.x(), point.y());
}

void TreemapChart::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    MarkedChart::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    m_tiles.setFrame(newGeometry.width(), newGeometry.height());
    repaintTiles();
}

void TreemapChart::readRows()
{
    std::vector<double> weights;
    if (m_model) {
        const int role = roleOf(*m_model, "weight");
        for (int row = 0; row < m_model->rowCount(); ++row)
            weights.push_back(m_model->index(row, 0).data(role).toDouble());
    }
    m_tiles = TreemapTiles(weights);
    m_tiles.setFrame(width(), height());
    forgetMarks();
    repaintTiles();
}

void TreemapChart::repaintTiles()
{
    m_painted = {};
    update();
}

QString TreemapChart::nameOf(std::size_t tile) const
{
    if (!m_model)
        return {};
    const QModelIndex index = m_model->index(static_cast<int>(tile), 0);
    return index.data(roleOf(*m_model, "name")).toString();
}

QColor TreemapChart::colorOf(std::size_t tile) const
{
    return m_colors.isEmpty() ? m_textColor
                              : m_colors.at(static_cast<qsizetype>(tile) % m_colors.size());
}

QImage TreemapChart::paintedTiles(qreal pixelsPerPoint) const
{
    QImage image((size() * pixelsPerPoint).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelsPerPoint);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t tile = 0; tile < m_tiles.count(); ++tile)
        paintTile(painter, tile, {.fillOpacity = m_restOpacity, .lineWidth = restLineWidth});
    return image;
}

// The outline lies inside the tile, so that it touches neither a gap nor a neighbour. A tile too
// small for a fill is all outline.
void TreemapChart::paintTile(QPainter &painter, std::size_t tile, const Ink &ink) const
{
    const QRectF rect = rectOf(m_tiles.box(tile, painter.deviceTransform().m11()));
    const qreal inset = ink.lineWidth / 2.0;
    const QRectF line = rect.adjusted(inset, inset, -inset, -inset);
    QColor fill = colorOf(tile);
    if (!line.isValid()) {
        painter.fillRect(rect, fill);
        return;
    }
    painter.setPen(QPen(fill, ink.lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    fill.setAlphaF(static_cast<float>(ink.fillOpacity));
    painter.setBrush(fill);
    const bool isSquare = rect.width() < leastRounded || rect.height() < leastRounded;
    const qreal radius = isSquare ? 0.0 : std::max(0.0, m_radius - inset);
    painter.drawRoundedRect(line, radius, radius);
}

void TreemapChart::paintNames(QPainter &painter) const
{
    const QFontMetricsF metrics(m_font);
    painter.setFont(m_font);
    painter.setPen(m_textColor);
    for (std::size_t tile = 0; tile < m_tiles.count(); ++tile) {
        if (!m_tiles.showsName(tile))
            continue;
        const bool isDimmed = currentMark() >= 0 && currentMark() != static_cast<int>(tile);
        painter.setOpacity(isDimmed ? dimmedNameOpacity : 1.0);
        const TreemapRect rect = m_tiles.tile(tile);
        const QRectF room(rect.x + namePadding, rect.y + namePadding / 2.0,
                          rect.width - 2.0 * namePadding, rect.height - namePadding);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                         metrics.elidedText(nameOf(tile), Qt::ElideMiddle, room.width()));
    }
    painter.setOpacity(1.0);
}

} // namespace Loadwick

#include "moc_TreemapChart.cpp"
