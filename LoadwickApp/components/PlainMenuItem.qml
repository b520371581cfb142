import QtQuick
import QtQuick.Templates
import QtQuick.Layouts
import Loadwick

// One line of a menu. Its words are `title`, because the control's own text accepts markup.
MenuItem {
    id: item

    required property string title
    // A second, quieter line; none when empty. It may explain why the item is disabled, and stays
    // readable then.
    required property string detail
    // At the end of the first line; none when empty.
    property string figure: ""
    property color figureTint: AppTheme.text
    // The selected one of several.
    property bool marked: false

    implicitHeight: item.detail.length > 0 ? AppTheme.listRowHeight : AppTheme.controlHeight
    leftPadding: AppTheme.mediumSpace
    rightPadding: AppTheme.mediumSpace
    topPadding: 0
    bottomPadding: 0
    Accessible.name: item.title
    // Without the marks that order a path's folders on the screen.
    Accessible.description: item.detail.replace(/\u200E/g, "")
    Accessible.checkable: item.marked
    Accessible.checked: item.marked

    contentItem: Item {
        Column {
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
            anchors.rightMargin: item.marked ? AppTheme.iconSize + AppTheme.smallSpace : 0

            RowLayout {
                width: parent.width
                spacing: AppTheme.smallSpace

                PlainLabel {
                    Layout.fillWidth: true
                    text: item.title
                    opacity: item.enabled ? 1 : AppTheme.disabledOpacity
                    elide: Text.ElideMiddle
                    maximumLineCount: 1
                    Accessible.ignored: true
                }
                PlainLabel {
                    text: item.figure
                    font: AppTheme.bodyStrongFont
                    color: item.figureTint
                    opacity: item.enabled ? 1 : AppTheme.disabledOpacity
                    visible: item.figure.length > 0
                    Accessible.ignored: true
                }
            }
            PlainLabel {
                width: parent.width
                text: item.detail
                font: AppTheme.captionFont
                secondary: true
                elide: Text.ElideMiddle
                maximumLineCount: 1
                visible: item.detail.length > 0
                Accessible.ignored: true
            }
        }
        Symbol {
            objectName: "mark"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            name: "checkmark.circle.fill"
            tint: AppTheme.accent
            visible: item.marked
        }
    }
    background: Rectangle {
        radius: AppTheme.tightSpace
        color: item.highlighted && item.enabled ? AppTheme.hoverFill : "transparent"
    }
    indicator: null
    arrow: null
}
