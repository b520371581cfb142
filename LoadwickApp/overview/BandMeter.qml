import QtQuick
import Loadwick

// Where the total sits on the scale of the bands. The scale goes from left to right in every script.
Item {
    id: meter

    required property BandPresenter band
    // Where the marker is on its way to the total's position.
    readonly property alias markerProgress: entrance.value
    readonly property string total: band.total

    implicitHeight: AppTheme.meterHeight + AppTheme.tightSpace + labels.implicitHeight
    Accessible.role: Accessible.Graphic
    Accessible.name: meter.band.meterSummary
    // A total other than the last arrives anew.
    onTotalChanged: if (entrance.hasBegun) entrance.begin()

    SpringSweep {
        id: entrance
        end: meter.band.position
    }

    BandMeterPlaces {
        id: places
        width: meter.width
        thresholds: meter.band.thresholds
        position: meter.band.position
        markerPosition: meter.markerProgress
        labelWidths: labels.widths
    }

    BandSegments {
        objectName: "bar"
        width: meter.width
        height: AppTheme.meterHeight
        places: places
    }

    BandTicks {
        width: meter.width
        height: AppTheme.meterHeight
        places: places
    }

    // A ring of the card's colour keeps the marker apart from whatever segment it lies on.
    Rectangle {
        objectName: "ring"
        anchors { fill: marker; margins: -AppTheme.meterTickWidth }
        radius: width / 2
        color: AppTheme.surface
    }

    Rectangle {
        id: marker
        objectName: "marker"
        x: places.markerLeft
        y: (AppTheme.meterHeight - height) / 2
        width: places.markerSide
        height: places.markerSide
        radius: width / 2
        color: AppTheme.text
    }

    BandLabels {
        id: labels
        objectName: "labels"
        y: AppTheme.meterHeight + AppTheme.tightSpace
        width: meter.width
        band: meter.band
        places: places
    }
}
