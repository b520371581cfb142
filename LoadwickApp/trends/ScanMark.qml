import QtQuick
import Loadwick

// How a compared scan stands out among the points of the chart: the earlier one as a ring, the
// later one as a disc.
Rectangle {
    id: mark

    property bool isFilled: false

    width: 12
    height: 12
    radius: 6
    color: mark.isFilled ? AppTheme.chartColors[0] : AppTheme.surface
    border { width: mark.isFilled ? 0 : 2; color: AppTheme.chartColors[0] }
    Accessible.ignored: true
}
