import QtQuick
import Loadwick

// The total on the scale of the bands. The scale goes from left to right in every script.
Item {
    id: meter

    required property BandPresenter band
    // The animated position of the marker.
    readonly property alias markerProgress: entrance.value
    readonly property string total: band.total

    // Clipped from a whole bar, so that the bar's ends are round whichever segments they belong to.
    component Segment: Item {
        id: segment

        required property real end
        required property real barWidth
        required property color color

        width: segment.end - segment.x
        height: AppTheme.meterHeight
        clip: true

        Rectangle {
            x: -segment.x
            width: segment.barWidth
            height: segment.height
            radius: height / 2
            color: segment.color
        }
    }
    component Tick: Rectangle {
        id: tick

        required property real offset

        x: tick.offset - tick.width / 2
        width: AppTheme.meterTickWidth
        height: AppTheme.meterHeight
        color: AppTheme.surface
    }
    // The name of a band under its segment, if there is room.
    component BandLabel: PlainLabel {
        id: label

        required property BandPresenter band
        required property BandMeterLayout layout
        // The index of the label's band.
        required property int index
        readonly property bool isCurrent: label.band.band === label.index

        text: label.band.bands[label.index] ?? ""
        font: label.isCurrent ? AppTheme.captionStrongFont : AppTheme.captionFont
        color: label.isCurrent ? AppTheme.bandTexts[label.index] : AppTheme.secondaryText
        x: Math.round(label.layout.labelLefts[label.index])
        visible: label.layout.labelsShown[label.index]
        // The meter has one accessible name as a whole.
        Accessible.ignored: true
    }

    implicitHeight: AppTheme.meterHeight + AppTheme.tightSpace + lean.implicitHeight
    // It speaks for the total and the band beside it, which are no tab stops.
    activeFocusOnTab: true
    Accessible.role: Accessible.Graphic
    Accessible.name: meter.band.meterSummary
    Accessible.focusable: true
    // A new total slides in from the start.
    onTotalChanged: if (entrance.hasBegun) entrance.begin()

    SpringSweep {
        id: entrance
        end: meter.band.position
    }

    BandMeterLayout {
        id: parts
        width: meter.width
        thresholds: meter.band.thresholds
        position: meter.band.position
        labelWidths: [lean.implicitWidth, heavy.implicitWidth, excessive.implicitWidth]
    }

    Item {
        id: bar

        readonly property real heavyLeft: Math.round(parts.ticks[0])
        readonly property real excessiveLeft: Math.round(parts.ticks[1])

        objectName: "bar"
        width: meter.width
        height: AppTheme.meterHeight

        Segment { end: bar.heavyLeft; barWidth: bar.width; color: AppTheme.bandLean }
        Segment { x: bar.heavyLeft; end: bar.excessiveLeft; barWidth: bar.width; color: AppTheme.bandHeavy }
        Segment { x: bar.excessiveLeft; end: bar.width; barWidth: bar.width; color: AppTheme.bandExcessive }
        Tick { offset: bar.heavyLeft }
        Tick { offset: bar.excessiveLeft }
    }

    // A ring in the card's colour separates the marker from the segment beneath it.
    Rectangle {
        objectName: "ring"
        anchors { fill: marker; margins: -AppTheme.meterTickWidth }
        radius: width / 2
        color: AppTheme.surface
    }

    Rectangle {
        id: marker
        objectName: "marker"
        x: parts.markerLeft(meter.width, meter.markerProgress)
        y: (AppTheme.meterHeight - height) / 2
        width: parts.markerSide
        height: parts.markerSide
        radius: width / 2
        color: AppTheme.text
    }

    FocusRing { shown: meter.activeFocus }

    Item {
        objectName: "labels"
        y: AppTheme.meterHeight + AppTheme.tightSpace
        width: meter.width

        BandLabel { id: lean; index: 0; band: meter.band; layout: parts }
        BandLabel { id: heavy; index: 1; band: meter.band; layout: parts }
        BandLabel { id: excessive; index: 2; band: meter.band; layout: parts }
    }
}
