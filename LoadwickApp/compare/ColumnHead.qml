import QtQuick
import QtQuick.Layouts
import Loadwick

// Whose card it is, when that was scanned, and the one number that is authoritative.
ColumnLayout {
    id: head

    required property ColumnPresenter column
    required property color fill
    readonly property color bandColor: AppTheme.bandTexts[head.column.band]

    spacing: AppTheme.tightSpace

    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.smallSpace

        Rectangle {
            implicitWidth: 12
            implicitHeight: 12
            radius: 4
            color: head.fill
        }
        SelectableText {
            objectName: "name"
            Layout.fillWidth: true
            text: head.column.name
            font: AppTheme.headlineFont
            maximumLineCount: 1

            HoverTip { words: head.column.name + "\n" + head.column.place }
        }
    }
    SelectableText {
        Layout.fillWidth: true
        text: head.column.scanned
        font: AppTheme.captionFont
        secondary: true
        maximumLineCount: 1
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.topMargin: AppTheme.smallSpace
        spacing: AppTheme.smallSpace

        Symbol {
            Layout.preferredWidth: 20
            Layout.preferredHeight: 20
            name: "scalemass"
            tint: head.bandColor
        }
        SelectableText {
            objectName: "total"
            Layout.fillWidth: true
            text: head.column.total
            font: AppTheme.title2Font
            color: head.bandColor
            maximumLineCount: 1
        }
    }
    SelectableText {
        Layout.fillWidth: true
        text: head.column.bandText
        font: AppTheme.captionStrongFont
        color: head.bandColor
        maximumLineCount: 1
    }
}
