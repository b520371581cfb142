#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "text/TextLocale.h"

namespace Loadwick {

/// The data behind one point of a line chart.
struct LineSample
{
    std::chrono::sys_seconds date;
    std::int64_t total; ///< tokens

    friend bool operator==(const LineSample &, const LineSample &) = default;
};

/// A position in a plot, as shares of its width and height: (0, 0) is at the lower left.
struct LinePoint
{
    double x;
    double y;

    friend bool operator==(const LinePoint &, const LinePoint &) = default;
};

/// The points of a line: dates run from the left to the right edge, totals rise from 0.
class LineGeometry
{
public:
    /// `samples` in any order; samples of the same second keep theirs.
    explicit LineGeometry(std::span<const LineSample> samples);

    /// The samples by date, and their points in the same order.
    [[nodiscard]] const std::vector<LineSample> &samples() const noexcept { return m_samples; }
    [[nodiscard]] const std::vector<LinePoint> &points() const noexcept { return m_points; }

    /// The total at the upper edge: 69,000 while no total is above 60,000, else the largest total
    /// and 15 % of it, truncated; the largest integer where that does not fit.
    [[nodiscard]] std::int64_t upperBound() const noexcept { return m_upperBound; }

    /// The index of the point nearest by date alone; among points of one date the one with the
    /// nearest total. Nothing without points.
    [[nodiscard]] std::optional<std::size_t> nearest(const LinePoint &target) const noexcept;

private:
    std::vector<LineSample> m_samples;
    std::vector<LinePoint> m_points;
    std::int64_t m_upperBound;
};

/// What a trend chart draws: totals by date, and the words for each.
class TrendLine final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the page's presenter.")

public:
    explicit TrendLine(TextLocale locale) : m_locale(std::move(locale)), m_geometry({}) {}

    void setSamples(std::span<const LineSample> samples);

    [[nodiscard]] const LineGeometry &geometry() const noexcept { return m_geometry; }
    [[nodiscard]] const TextLocale &locale() const noexcept { return m_locale; }

    /// When a point's scan was made, to the minute, and its tokens; by the point's index.
    [[nodiscard]] QString date(std::size_t index) const;
    [[nodiscard]] QString total(std::size_t index) const;

Q_SIGNALS:
    void changed();

private:
    TextLocale m_locale;
    LineGeometry m_geometry;
};

} // namespace Loadwick
