import QtQuick
import Loadwick

// Marks one of the compared scans in the chart. Not painted by the chart itself, because a picture
// of it says nothing about the comparison.
ScanMark {
    id: mark

    required property TrendChart chart
    // The index of the scan's point, -1 for none.
    required property int point

    function place() {
        const centre = mark.chart.centreOf(mark.point);
        mark.x = Math.round(centre.x - mark.width / 2);
        mark.y = Math.round(centre.y - mark.height / 2);
    }

    visible: mark.point >= 0
    onPointChanged: mark.place()
    Component.onCompleted: mark.place()

    Connections {
        target: mark.chart

        function onDrawn() { mark.place(); }
    }
}
