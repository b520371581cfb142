import QtQuick
import QtQuick.Layouts
import Loadwick

// The files as tiles of a map, and beside it what the tile in focus stands for.
ColumnLayout {
    id: sizes

    required property InstructionFilesPresenter files
    // The width of the card that holds it. The map's height follows from that and not from what the
    // layouts make of it: a height that changes while they are at it comes too late for them.
    required property real room
    readonly property int readOutWidth: 200
    // As wide as the page it would be as high as the window, and push everything else away.
    readonly property real mapWidth: Math.max(0, Math.min(AppTheme.treemapWidth, sizes.room < pair.neededWidth
        ? sizes.room : sizes.room - pair.columnSpacing - sizes.readOutWidth))

    spacing: AppTheme.smallSpace

    PlainLabel {
        Layout.fillWidth: true
        text: sizes.files.sizeTitle
        font: AppTheme.emphasisFont
    }
    SideBySide {
        id: pair

        Layout.fillWidth: true
        rowSpacing: AppTheme.smallSpace
        columnSpacing: AppTheme.pageMargin
        visible: sizes.files.hasSizes

        ColumnLayout {
            Layout.minimumWidth: 400
            Layout.preferredWidth: sizes.mapWidth
            Layout.maximumWidth: AppTheme.treemapWidth
            Layout.alignment: Qt.AlignTop
            spacing: AppTheme.smallSpace

            TreemapChart {
                id: map

                objectName: "map"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.round(sizes.mapWidth * 9 / 16)
                model: sizes.files.tiles
                colors: AppTheme.chartColors
                textColor: AppTheme.text
                font: AppTheme.captionFont
                restOpacity: AppTheme.tileOpacity
                currentOpacity: AppTheme.currentTileOpacity
                dimming: AppTheme.tileDimming
                Accessible.role: Accessible.Graphic
                Accessible.name: sizes.files.sizeSummary
                Accessible.description: sizes.files.tiles.words(map.currentMark)
                Accessible.focusable: true

                FocusRing {
                    shown: map.activeFocus
                    controlRadius: 3
                }
            }
            PlainLabel {
                Layout.fillWidth: true
                text: sizes.files.sizeCaption
                font: AppTheme.captionFont
                secondary: true
                wrapMode: Text.Wrap
            }
        }
        ReadOut {
            objectName: "readOut"
            Layout.fillWidth: true
            Layout.minimumWidth: sizes.readOutWidth
            Layout.preferredWidth: sizes.readOutWidth
            Layout.alignment: Qt.AlignTop
            title: sizes.files.tiles.path(map.currentMark)
            detail: sizes.files.tiles.figures(map.currentMark)
            hint: sizes.files.sizeHint
            isPath: true
            titleLines: pair.stacked ? 2 : 4
            detailLines: 3
            atTop: true
        }
    }
    PlainLabel {
        objectName: "noSizes"
        Layout.fillWidth: true
        text: sizes.files.noSizesText
        secondary: true
        wrapMode: Text.Wrap
        visible: !sizes.files.hasSizes
    }
}
