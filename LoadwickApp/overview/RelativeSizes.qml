import QtQuick
import Loadwick

// The files as tiles of a treemap, beside the read-out of the current tile, or above it where the
// room is narrow. Not a layout: the heights follow from the room.
Item {
    id: sizes

    required property InstructionFilesPresenter files
    required property Flickable viewport
    // The inner width of the card.
    required property real room
    readonly property int readOutWidth: AppTheme.scaled(200)
    readonly property int leastMapWidth: 400
    readonly property real besideWidth: sizes.room - AppTheme.pageMargin - sizes.readOutWidth
    readonly property bool stacked: sizes.besideWidth < sizes.leastMapWidth
    // At page width it would be as high as the window and push everything else away.
    readonly property real mapWidth: Math.max(0, Math.min(AppTheme.treemapWidth, sizes.stacked ? sizes.room : sizes.besideWidth))
    // The top of the viewport. Every holder's position is read, so that the value follows them all.
    readonly property real viewTop: {
        let y = sizes.viewport.contentY;
        for (let holder = sizes; holder && holder !== sizes.viewport.contentItem; holder = holder.parent)
            y -= holder.y;
        return y;
    }

    // How far the words on the current tile leave their place, so that they stay in view as long as
    // the map does, and never cover it.
    readonly property real shift: {
        const bottom = sizes.viewTop + sizes.viewport.height;
        if (readOut.isEmpty || sizes.viewTop > map.y + map.height || bottom < map.y)
            return 0;
        const end = readOut.y + readOut.panelHeight + AppTheme.smallSpace;
        if (sizes.stacked)
            return end > bottom ? map.y - end : 0;
        return Math.max(sizes.viewTop + AppTheme.smallSpace - readOut.y, Math.min(0, bottom - end));
    }

    z: 1
    implicitHeight: Math.ceil(sizes.files.hasSizes ? Math.max(note.y + note.height, readOut.y + readOut.height)
                                                   : noSizes.y + noSizes.height)

    TitleLabel {
        id: heading

        anchors { left: parent.left; right: parent.right }
        text: qsTr("Relative size")
        font: AppTheme.emphasisFont
    }
    TreemapChart {
        id: map

        objectName: "map"
        anchors { left: parent.left; top: heading.bottom; topMargin: AppTheme.smallSpace }
        width: sizes.mapWidth
        height: Math.round(sizes.mapWidth * 9 / 16)
        visible: sizes.files.hasSizes
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
        Accessible.onPressAction: actions.openFile(map.currentMark)
        Keys.forwardTo: [actions]

        // What assistive technology asks for.
        function showMenu() { actions.openMenu(map.currentMark); }

        FileActions {
            id: actions

            anchors.fill: parent
            opener: sizes.files.opener
            rows: sizes.files.tiles
            rowAtPoint: map.markUnder(actions.point)
            currentRow: map.currentMark
            corner: Qt.point(AppTheme.smallSpace, map.height - AppTheme.smallSpace)
        }
        FocusRing {
            shown: map.activeFocus
            controlRadius: 3
        }
    }
    PlainLabel {
        id: note

        anchors { left: parent.left; top: map.bottom; topMargin: AppTheme.smallSpace }
        width: sizes.mapWidth
        text: qsTr("Tile sizes use estimated token counts.")
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        visible: sizes.files.hasSizes
    }
    ReadOut {
        id: readOut

        objectName: "readOut"
        anchors {
            left: sizes.stacked ? parent.left : map.right
            leftMargin: sizes.stacked ? 0 : AppTheme.pageMargin
            right: parent.right
            top: sizes.stacked ? note.bottom : map.top
            topMargin: sizes.stacked ? AppTheme.smallSpace : 0
        }
        title: sizes.files.tiles.text(map.currentMark, "path")
        detail: sizes.files.tiles.text(map.currentMark, "figures")
        note: sizes.files.tiles.text(map.currentMark, "importer")
        hint: qsTr("Hover a tile, or walk the tiles with the arrow keys, for its path and share.")
        isPath: true
        titleLines: sizes.stacked ? 2 : 4
        detailLines: 3
        noteLines: sizes.files.hasImports ? 2 : 0
        atTop: true
        visible: sizes.files.hasSizes
        transform: Translate { y: sizes.shift }
    }
    PlainLabel {
        id: noSizes

        objectName: "noSizes"
        anchors { left: parent.left; right: parent.right; top: heading.bottom; topMargin: AppTheme.smallSpace }
        text: qsTr("The instruction files have no estimated tokens to compare.")
        secondary: true
        wrapMode: Text.Wrap
        visible: !sizes.files.hasSizes
    }
}
