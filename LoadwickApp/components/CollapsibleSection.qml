import QtQuick
import QtQuick.Templates
import QtQuick.Layouts
import Loadwick

// A section that opens and closes; its whole header is clickable.
ColumnLayout {
    id: section

    required property string title
    property string detail: ""
    property font titleFont: AppTheme.headlineFont
    property bool isExpanded: false
    default property alias content: body.data

    spacing: 0

    AbstractButton {
        id: head

        readonly property string openness: section.isExpanded ? qsTr("Expanded") : qsTr("Collapsed")

        Layout.fillWidth: true
        implicitWidth: implicitContentWidth
        implicitHeight: Math.max(implicitContentHeight, AppTheme.controlHeight)
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        Accessible.role: Accessible.Button
        Accessible.name: section.title
        Accessible.description: section.detail.length > 0 ? head.openness + ". " + section.detail : head.openness
        Keys.onReturnPressed: head.clicked()
        Keys.onEnterPressed: head.clicked()
        onClicked: {
            section.isExpanded = !section.isExpanded;
            Announcer.announce(head.openness);
        }

        contentItem: RowLayout {
            spacing: AppTheme.smallSpace

            Symbol {
                name: "chevron.right"
                tint: AppTheme.secondaryText
                angle: section.isExpanded ? 90 : head.mirrored ? 180 : 0
                // Aligned with the title, not with the middle of title and detail.
                Layout.alignment: section.detail.length > 0 ? Qt.AlignTop : Qt.AlignVCenter
                Layout.topMargin: section.detail.length > 0 ? AppTheme.tightSpace : 0

                Behavior on angle {
                    enabled: !AppTheme.reduceMotion
                    NumberAnimation { duration: AppTheme.hoverDuration; easing.type: Easing.OutQuad }
                }
            }
            SectionHeader {
                Layout.fillWidth: true
                title: section.title
                detail: section.detail
                titleFont: section.titleFont
            }
        }

        background: Rectangle {
            anchors { fill: parent; margins: -AppTheme.tightSpace }
            radius: AppTheme.controlRadius
            color: head.down ? AppTheme.pressedFill : head.hovered ? AppTheme.hoverFill : "transparent"

            FocusRing { shown: head.visualFocus }
        }

        HoverHandler { cursorShape: Qt.PointingHandCursor }
    }

    ColumnLayout {
        id: body

        Layout.fillWidth: true
        Layout.topMargin: AppTheme.cardSpace
        spacing: AppTheme.smallSpace
        visible: section.isExpanded
    }
}
