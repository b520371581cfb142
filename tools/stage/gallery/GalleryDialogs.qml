import QtQuick
import QtQuick.Layouts
import Loadwick
import LoadwickGallery

// Everything that opens above the window. The button opens the real dialog.
RowLayout {
    spacing: AppTheme.wideSpace

    Rectangle {
        Layout.preferredWidth: AppTheme.stateWidth
        implicitHeight: confirmation.implicitHeight + 2 * AppTheme.pageMargin
        radius: AppTheme.cardRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }

        Confirmation {
            id: confirmation

            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: AppTheme.pageMargin }
            title: "Delete every recorded scan?"
            message: "This cannot be undone. The scan currently on screen stays; only the recorded history is deleted."
            action: "Delete 31 Recorded Scans"
        }
    }
    SheetSurface {
        Layout.preferredWidth: 320
        Layout.fillHeight: true

        ColumnLayout {
            anchors { fill: parent; margins: AppTheme.pageMargin }
            PlainLabel { text: "A sheet"; font: AppTheme.headlineFont }
            OnboardingStepDots { currentIndex: 1; stepCount: 4; position: "Step 2 of 4" }
            OnboardingBandLegend { Layout.fillWidth: true; onboarding: GallerySamples.onboarding }
        }
    }
    ColumnLayout {
        spacing: AppTheme.cardSpace

        // As in an open menu: marked, hovered, missing.
        Rectangle {
            implicitWidth: 260
            implicitHeight: items.implicitHeight + 2 * AppTheme.tightSpace
            radius: AppTheme.controlRadius
            color: AppTheme.surface
            border { width: AppTheme.hairline; color: AppTheme.separator }

            Column {
                id: items

                anchors { fill: parent; margins: AppTheme.tightSpace }

                PlainMenuItem { width: parent.width; title: "harbor-api"; detail: "/home/someone/projects/harbor-api"; marked: true }
                PlainMenuItem { width: parent.width; title: "webshop"; detail: "/home/someone/projects/with-a-long-name/webshop"; highlighted: true }
                PlainMenuItem { width: parent.width; title: "old"; detail: "Folder not found: /home/someone/projects/that/were/moved/old"; enabled: false }
                PlainMenuItem { width: parent.width; title: "Copy"; detail: "" }
            }
        }
        MomentaryNote { words: "Copied"; visible: true }
        PushButton {
            title: "Clear Recorded Data…"
            symbol: "trash"
            outlined: true
            toolTip: "A tool tip says more, in plain text."
            onClicked: dialog.open()
        }
    }

    ConfirmationDialog {
        id: dialog
        title: confirmation.title
        message: confirmation.message
        action: confirmation.action
    }
}
