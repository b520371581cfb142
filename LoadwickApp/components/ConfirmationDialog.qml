import QtQuick
import QtQuick.Templates
import Loadwick

// Asks before something is destroyed. Cancel is the easiest to press: it has the focus, and Escape
// means the same.
Dialog {
    id: dialog

    required property string message
    // What the destructive button does.
    required property string action

    signal confirmed()

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: parent ? Math.min(AppTheme.stateWidth, parent.width - 2 * AppTheme.pageMargin) : AppTheme.stateWidth
    implicitHeight: contentHeight + topPadding + bottomPadding
    modal: true
    focus: true
    closePolicy: Popup.CloseOnEscape
    padding: AppTheme.pageMargin
    onAboutToShow: (dialog.contentItem as Confirmation).focusCancel()
    onAccepted: dialog.confirmed()

    Overlay.modal: Rectangle { color: AppTheme.dim }

    background: Rectangle {
        radius: AppTheme.cardRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }

    contentItem: Confirmation {
        title: dialog.title
        message: dialog.message
        action: dialog.action
        onCancelled: dialog.reject()
        onConfirmed: dialog.accept()
    }
}
