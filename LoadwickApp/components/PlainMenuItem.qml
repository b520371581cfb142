import QtQuick
import QtQuick.Controls
import Loadwick

// One line of a menu. Its words are `title`, not the control's own text, which would take markup.
MenuItem {
    id: item

    required property string title
    // A second, quieter line; none when empty.
    property string detail: ""

    implicitHeight: item.detail.length > 0 ? 48 : AppTheme.controlHeight
    leftPadding: AppTheme.mediumSpace
    rightPadding: AppTheme.mediumSpace
    topPadding: 0
    bottomPadding: 0
    opacity: item.enabled ? 1 : AppTheme.disabledOpacity
    Accessible.name: item.title
    Accessible.description: item.detail

    contentItem: Column {
        topPadding: Math.round((item.height - lines.height) / 2)

        Column {
            id: lines

            width: parent.width

            PlainLabel {
                width: parent.width
                text: item.title
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
            PlainLabel {
                width: parent.width
                text: item.detail
                font: AppTheme.captionFont
                secondary: true
                elide: Text.ElideMiddle
                visible: item.detail.length > 0
                Accessible.ignored: true
            }
        }
    }
    background: Rectangle {
        radius: AppTheme.tightSpace
        color: item.highlighted && item.enabled ? AppTheme.hoverFill : "transparent"
    }
    indicator: null
    arrow: null
}
