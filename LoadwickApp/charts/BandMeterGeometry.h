#pragma once

#include <array>

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// The layout of the band meter's parts. Offsets and widths are in pixels from the meter's left
/// end, positions are fractions of its width.
namespace BandMeterGeometry {

inline constexpr double markerSide = 12;
inline constexpr double labelGap = 8; ///< the minimum between two labels

/// The meter and what it measures.
struct Meter
{
    double width;
    std::array<double, 2> thresholds; ///< positions, in ascending order
    double position;                  ///< of the total
};

/// A stretch of the meter.
struct Extent
{
    double left;
    double width;

    [[nodiscard]] double right() const noexcept { return left + width; }
    [[nodiscard]] double middle() const noexcept { return left + width / 2; }
};

/// A label under its segment; the extent means nothing while it is hidden.
struct Label
{
    Extent extent;
    bool isShown;
};

/// Lean, heavy, excessive, from left to right; together the meter. Segments may be empty.
[[nodiscard]] std::array<Extent, 3> segments(const Meter &meter) noexcept;

/// Where the segments meet.
[[nodiscard]] std::array<double, 2> ticks(const Meter &meter) noexcept;

/// The left edge of the marker at a position, clamped to the meter; 0 on a meter narrower than the
/// marker.
[[nodiscard]] double markerLeft(double width, double position) noexcept;

/// Centres labels of these widths under their segments. A label moves aside for the meter's ends
/// and for labels laid out before it, and is hidden if it would then miss the middle of its own
/// segment. The total's band is laid out first, then the others by segment width. Visible labels
/// stay `labelGap` apart and on the meter.
[[nodiscard]] std::array<Label, 3> labels(const Meter &meter,
                                          const std::array<double, 3> &widths) noexcept;

} // namespace BandMeterGeometry

/// The geometry of a band meter for QML bindings. All lists run from lean to excessive; missing
/// entries count as zero.
class BandMeterLayout : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// Pixels.
    Q_PROPERTY(qreal width MEMBER m_width NOTIFY changed)
    /// The two thresholds and the total, as fractions of the width.
    Q_PROPERTY(QList<qreal> thresholds MEMBER m_thresholds NOTIFY changed)
    Q_PROPERTY(qreal position MEMBER m_position NOTIFY changed)
    Q_PROPERTY(QList<qreal> labelWidths MEMBER m_labelWidths NOTIFY changed)

    Q_PROPERTY(qreal markerSide READ markerSide CONSTANT)
    Q_PROPERTY(QList<qreal> ticks READ ticks NOTIFY changed)
    Q_PROPERTY(QList<qreal> labelLefts READ labelLefts NOTIFY changed)
    Q_PROPERTY(QList<bool> labelsShown READ labelsShown NOTIFY changed)

public:
    using QObject::QObject;

    [[nodiscard]] static qreal markerSide() noexcept { return BandMeterGeometry::markerSide; }
    /// Not a property: the marker moves every frame, and the labels must not follow it.
    Q_INVOKABLE [[nodiscard]] static qreal markerLeft(qreal width, qreal position) noexcept;
    [[nodiscard]] QList<qreal> ticks() const;
    [[nodiscard]] QList<qreal> labelLefts() const;
    [[nodiscard]] QList<bool> labelsShown() const;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] BandMeterGeometry::Meter meter() const;
    [[nodiscard]] std::array<BandMeterGeometry::Label, 3> labels() const;

    qreal m_width = 0;
    QList<qreal> m_thresholds;
    qreal m_position = 0;
    QList<qreal> m_labelWidths;
};

} // namespace Loadwick
