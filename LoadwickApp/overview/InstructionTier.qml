import QtQuick
import QtQuick.Layouts
import Loadwick

// The instruction files of one tier, one row each.
ColumnLayout {
    id: tier

    required property string title
    required property InstructionFileRows rows
    required property string emptyText
    required property Flickable viewport

    spacing: AppTheme.tightSpace

    PlainLabel {
        Layout.fillWidth: true
        text: tier.title
        font: AppTheme.emphasisFont
    }
    LongList {
        objectName: "list"
        Layout.fillWidth: true
        rowHeight: AppTheme.fileRowHeight
        viewport: tier.viewport
        model: tier.rows
        visible: tier.rows.count > 0
        Accessible.name: tier.title
        onCopyRequested: index => tier.rows.copyPath(index)

        delegate: InstructionFileRow { width: ListView.view.width }
    }
    PlainLabel {
        objectName: "empty"
        Layout.fillWidth: true
        text: tier.emptyText
        secondary: true
        visible: tier.rows.count === 0
    }
}
