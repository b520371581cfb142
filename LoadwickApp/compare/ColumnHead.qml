import QtQuick
import Loadwick

// The card's repository, when it was scanned, and the one authoritative number. The head is one tab
// stop, because four on each of many cards would be too many; the arrow keys move from the name
// through the other words. Anchors, because each nested layout would lay out all words again.
Item {
    id: head

    required property ColumnPresenter column
    required property color fill
    readonly property color bandColor: AppTheme.bandTexts[head.column.band]

    implicitHeight: band.y + band.height

    Rectangle {
        id: dot

        anchors { left: parent.left; verticalCenter: name.verticalCenter }
        width: 12
        height: 12
        radius: 4
        color: head.fill
    }
    SelectableText {
        id: name

        objectName: "name"
        anchors { left: dot.right; leftMargin: AppTheme.smallSpace; right: parent.right }
        text: head.column.name
        font: AppTheme.headlineFont
        maximumLineCount: 1
        KeyNavigation.down: scanned

        HoverTip { words: head.column.name + "\n" + head.column.path }
    }
    SelectableText {
        id: scanned

        anchors { left: parent.left; right: parent.right; top: name.bottom; topMargin: AppTheme.tightSpace }
        text: head.column.scanned
        tabStop: false
        KeyNavigation.down: total
        font: AppTheme.captionFont
        secondary: true
        maximumLineCount: 1
    }
    Symbol {
        id: mark

        anchors { left: parent.left; verticalCenter: total.verticalCenter }
        width: 20
        height: 20
        name: "scalemass"
        tint: head.bandColor
    }
    SelectableText {
        id: total

        objectName: "total"
        anchors { left: mark.right; leftMargin: AppTheme.smallSpace; right: parent.right; top: scanned.bottom; topMargin: AppTheme.mediumSpace }
        text: head.column.total
        tabStop: false
        KeyNavigation.down: band
        font: AppTheme.title2Font
        color: head.bandColor
        maximumLineCount: 1
    }
    SelectableText {
        id: band

        anchors { left: parent.left; right: parent.right; top: total.bottom; topMargin: AppTheme.tightSpace }
        text: head.column.bandText
        tabStop: false
        font: AppTheme.captionStrongFont
        color: head.bandColor
        maximumLineCount: 1
    }
}
