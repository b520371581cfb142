import QtQuick
import QtQuick.Layouts
import Loadwick

// Replaces a page's content: a symbol, a title, and the state's own content below. The group is a
// little above the centre, where the eye expects it.
Item {
    id: placeholder

    required property string symbol
    required property color tint
    required property string title
    property bool turning: false
    default property alias content: column.data
    readonly property real availableHeight: height - 2 * AppTheme.pageMargin
    // Where the group ends.
    readonly property real groupEnd: column.y + column.height

    implicitWidth: AppTheme.stateWidth + 2 * AppTheme.pageMargin
    // Its height comes from the page, never from its content.
    implicitHeight: 320

    ColumnLayout {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.round(Math.max(AppTheme.pageMargin, placeholder.height * 0.45 - height / 2))
        width: Math.min(AppTheme.stateWidth, placeholder.width - 2 * AppTheme.pageMargin)
        spacing: AppTheme.smallSpace

        StateIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: AppTheme.smallSpace
            symbol: placeholder.symbol
            tint: placeholder.tint
            turning: placeholder.turning
        }
        TitleLabel {
            Layout.fillWidth: true
            text: placeholder.title
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
