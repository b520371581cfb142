import QtQuick
import Loadwick

// The bar in the colours of the bands. Each segment is cut out of a whole bar, so that the bar's ends
// are round whatever segments they belong to.
Item {
    id: segments

    required property BandMeterPlaces places
    readonly property real heavyLeft: Math.round(places.ticks[0])
    readonly property real excessiveLeft: Math.round(places.ticks[1])

    component Segment: Item {
        id: segment

        required property real barWidth
        required property color color

        clip: true

        Rectangle {
            x: -segment.x
            width: segment.barWidth
            height: segment.height
            radius: height / 2
            color: segment.color
        }
    }

    Segment {
        width: segments.heavyLeft
        height: segments.height
        barWidth: segments.width
        color: AppTheme.bandLean
    }
    Segment {
        x: segments.heavyLeft
        width: segments.excessiveLeft - segments.heavyLeft
        height: segments.height
        barWidth: segments.width
        color: AppTheme.bandHeavy
    }
    Segment {
        x: segments.excessiveLeft
        width: segments.width - segments.excessiveLeft
        height: segments.height
        barWidth: segments.width
        color: AppTheme.bandExcessive
    }
}
