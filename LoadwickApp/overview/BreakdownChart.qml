import QtQuick
import QtQuick.Layouts
import Loadwick

// The donut around the total, beside the read-out of the current slice.
RowLayout {
    id: chart

    required property BreakdownPresenter breakdown
    readonly property int currentRow: donut.currentRow
    property bool appeared: false

    function appear() {
        if (chart.visible)
            chart.appeared = true;
    }

    spacing: AppTheme.pageMargin
    onVisibleChanged: chart.appear()
    Component.onCompleted: chart.appear()

    Item {
        id: ring

        objectName: "ring"
        implicitWidth: 220
        implicitHeight: 220
        opacity: chart.appeared ? 1 : 0
        scale: chart.appeared ? 1 : 0.88

        Behavior on opacity {
            enabled: !AppTheme.reduceMotion
            NumberAnimation { duration: Springs.donutDuration; easing: Springs.donut }
        }
        Behavior on scale {
            enabled: !AppTheme.reduceMotion
            NumberAnimation { duration: Springs.donutDuration; easing: Springs.donut }
        }

        DonutChart {
            id: donut

            objectName: "donut"
            anchors.fill: parent
            tokens: chart.breakdown.slices
            colors: AppTheme.chartColors
            Accessible.role: Accessible.Graphic
            Accessible.name: chart.breakdown.chartSummary
            Accessible.description: donut.currentRow < 0 ? readOut.hint + " " + qsTr("The arrow keys walk the segments.")
                                                         : chart.breakdown.readOutSentence(donut.currentRow)
            Accessible.focusable: true
            onWalked: Announcer.announce(donut.Accessible.description + "\n" + donut.markPosition)

            FocusRing {
                shown: donut.activeFocus
                controlRadius: donut.width / 2
            }
        }
        ColumnLayout {
            anchors.centerIn: parent
            width: ring.width * 0.5
            spacing: 0

            PlainLabel {
                objectName: "total"
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: chart.breakdown.total
                font: AppTheme.title2Font
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: AppTheme.captionFont.pixelSize
            }
            PlainLabel {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("tokens")
                secondary: true
            }
        }
    }
    ReadOut {
        id: readOut

        Layout.fillWidth: true
        Layout.maximumWidth: implicitWidth
        hint: qsTr("Hover a segment for its share.")
        title: chart.breakdown.readOutTitle(donut.currentRow)
        detail: chart.breakdown.readOutDetail(donut.currentRow)
        swatch: donut.currentRow < 0 ? "transparent"
                                     : AppTheme.chartColors[donut.currentRow % AppTheme.chartColors.length]
    }
}
