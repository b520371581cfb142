import QtQuick
import QtQuick.Layouts
import Loadwick

// What stands where the line will be.
Item {
    id: place

    required property string title
    required property string detail

    implicitWidth: AppTheme.stateWidth
    implicitHeight: column.implicitHeight + 2 * AppTheme.pageMargin

    ColumnLayout {
        id: column

        anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: parent.verticalCenter }
        width: Math.min(AppTheme.stateWidth, place.width)
        spacing: AppTheme.smallSpace

        StateIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: AppTheme.smallSpace
            symbol: "chart.line.uptrend.xyaxis"
            tint: AppTheme.secondaryText
        }
        PlainLabel {
            Layout.fillWidth: true
            text: place.title
            font: AppTheme.headlineFont
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            visible: place.title.length > 0
        }
        PlainLabel {
            Layout.fillWidth: true
            text: place.detail
            secondary: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
