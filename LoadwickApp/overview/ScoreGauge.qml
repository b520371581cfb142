import QtQuick
import Loadwick

// The headroom score as a gauge: a ring that fills, the figure in the centre, the name in the gap.
Item {
    id: gauge

    required property BandPresenter band
    // The animated value of the ring; it lags behind the figure.
    readonly property alias animatedScore: entrance.value

    implicitWidth: AppTheme.gaugeSide
    implicitHeight: AppTheme.gaugeSide
    Accessible.role: Accessible.Graphic
    Accessible.name: gauge.band.scoreSummary

    SpringSweep {
        id: entrance
        end: gauge.band.score
    }

    Connections {
        target: gauge.band
        function onChanged() {
            if (entrance.hasBegun)
                entrance.begin();
        }
    }

    GaugeArc {
        objectName: "arc"
        anchors.centerIn: parent
        width: AppTheme.gaugeArcSide
        height: AppTheme.gaugeArcSide
        value: gauge.animatedScore
        tint: AppTheme.bandShapes[gauge.band.band]
        track: AppTheme.quietFill
    }
    PlainLabel {
        anchors.centerIn: parent
        text: gauge.band.scoreText
        font: AppTheme.gaugeFont
        Accessible.ignored: true
    }
    PlainLabel {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
        text: qsTr("Score")
        font: AppTheme.captionFont
        secondary: true
        Accessible.ignored: true
    }
}
