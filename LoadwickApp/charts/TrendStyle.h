#pragma once

#include <QColor>
#include <QFont>

namespace Loadwick {

/// The colours and the font of a trend chart.
struct TrendStyle
{
    QFont font;
    QColor line;
    QColor heavy; ///< of the threshold between lean and heavy
    QColor heavyName;
    QColor excessive;
    QColor excessiveName;
    QColor grid;
    QColor tick; ///< of the axis of dates
    QColor text;
    QColor secondaryText;
    QColor ground;
};

} // namespace Loadwick
