import QtQuick
import QtQuick.Layouts
import Loadwick

// The files as tiles of a treemap, beside the read-out of the current tile.
ColumnLayout {
    id: sizes

    required property InstructionFilesPresenter files
    required property Flickable viewport
    // The inner width of the card. The map's height follows from it, not from the layouts' result:
    // a height that changes during a layout pass comes too late.
    required property real room
    readonly property int readOutWidth: 200
    // At page width it would be as high as the window and push everything else away.
    readonly property real mapWidth: Math.max(0, Math.min(AppTheme.treemapWidth, sizes.room < pair.neededWidth
        ? sizes.room : sizes.room - pair.columnSpacing - sizes.readOutWidth))

    // How far the words on the current tile leave their place, so that they stay in view as long as
    // the map does, and never cover it.
    readonly property real shift: {
        const top = sizes.viewport.contentY - pair.mapToItem(sizes.viewport.contentItem, 0, 0).y;
        const bottom = top + sizes.viewport.height;
        if (readOut.isEmpty || top > map.height || bottom < 0)
            return 0;
        const end = readOut.y + readOut.panelHeight + AppTheme.smallSpace;
        if (pair.stacked)
            return end > bottom ? -end : 0;
        return Math.max(top + AppTheme.smallSpace - readOut.y, Math.min(0, bottom - end));
    }

    z: 1
    spacing: AppTheme.smallSpace

    TitleLabel {
        Layout.fillWidth: true
        text: qsTr("Relative size")
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
                Accessible.description: map.currentMark < 0 ? readOut.hint : sizes.files.tiles.text(map.currentMark, "words")
                Accessible.focusable: true
                onWalked: Announcer.announce(map.Accessible.description + "\n" + map.markPosition)

                FocusRing {
                    shown: map.activeFocus
                    controlRadius: 3
                }
            }
            PlainLabel {
                Layout.fillWidth: true
                text: qsTr("Tile sizes use estimated token counts.")
                font: AppTheme.captionFont
                secondary: true
                wrapMode: Text.Wrap
            }
        }
        ReadOut {
            id: readOut

            objectName: "readOut"
            Layout.fillWidth: true
            Layout.minimumWidth: sizes.readOutWidth
            Layout.preferredWidth: sizes.readOutWidth
            Layout.alignment: Qt.AlignTop
            title: sizes.files.tiles.text(map.currentMark, "path")
            detail: sizes.files.tiles.text(map.currentMark, "figures")
            note: sizes.files.tiles.text(map.currentMark, "importer")
            hint: qsTr("Hover a tile, or walk the tiles with the arrow keys, for its path and share.")
            isPath: true
            titleLines: pair.stacked ? 2 : 4
            detailLines: 3
            noteLines: sizes.files.hasImports ? 2 : 0
            atTop: true
            transform: Translate { y: sizes.shift }
        }
    }
    PlainLabel {
        objectName: "noSizes"
        Layout.fillWidth: true
        text: qsTr("The instruction files have no estimated tokens to compare.")
        secondary: true
        wrapMode: Text.Wrap
        visible: !sizes.files.hasSizes
    }
}
