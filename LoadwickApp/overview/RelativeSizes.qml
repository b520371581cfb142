import QtQuick
import QtQuick.Layouts
import Loadwick

// The files as tiles of a map, and beside it what the tile in focus stands for.
ColumnLayout {
    id: sizes

    required property InstructionFilesPresenter files

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
            Layout.fillWidth: true
            Layout.minimumWidth: 400
            // As wide as the page it would be as high as the window, and push everything else away.
            Layout.maximumWidth: AppTheme.treemapWidth
            Layout.alignment: Qt.AlignTop
            spacing: AppTheme.smallSpace

            TreemapChart {
                id: map

                objectName: "map"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.round(width * 9 / 16)
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
        TileReadOut {
            objectName: "readOut"
            Layout.fillWidth: true
            Layout.minimumWidth: 200
            Layout.alignment: Qt.AlignTop
            path: sizes.files.tiles.path(map.currentMark)
            figures: sizes.files.tiles.figures(map.currentMark)
            hint: sizes.files.sizeHint
            pathLines: pair.stacked ? 2 : 4
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
