import QtQuick
import QtQuick.Controls
import Loadwick

// One line of a menu. Its words are `title`, not the control's own text, which would take markup.
MenuItem {
    id: item

    required property string title
    // A second, quieter line; none when empty. It may say why the item is disabled, and stays
    // readable then.
    required property string detail
    // The one of several that holds now.
    property bool marked: false

    implicitHeight: item.detail.length > 0 ? 48 : AppTheme.controlHeight
    leftPadding: AppTheme.mediumSpace
    rightPadding: AppTheme.mediumSpace
    topPadding: 0
    bottomPadding: 0
    Accessible.name: item.title
    Accessible.description: item.detail
    Accessible.checkable: item.marked
    Accessible.checked: item.marked

    contentItem: MenuLines {
        title: item.title
        detail: item.detail
        marked: item.marked
        usable: item.enabled
    }
    background: Rectangle {
        radius: AppTheme.tightSpace
        color: item.highlighted && item.enabled ? AppTheme.hoverFill : "transparent"
    }
    indicator: null
    arrow: null
}
