#pragma once

#include <span>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "charts/LineGeometry.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// What a trend chart draws: totals by date, and the words about each of them.
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

    /// Of the point at a place in the geometry's order: when it was, to the minute, and its tokens.
    [[nodiscard]] QString date(std::size_t place) const;
    [[nodiscard]] QString total(std::size_t place) const;

Q_SIGNALS:
    void changed();

private:
    TextLocale m_locale;
    LineGeometry m_geometry;
};

} // namespace Loadwick
