import QtQuick
import QtQuick.Templates
import Loadwick

// The sheet of the first launch. Nothing behind it can be reached while it is open.
Dialog {
    id: sheet

    required property OnboardingPresenter onboarding
    property bool hasAppeared: false
    property bool isDismissing: false
    property real presence: hasAppeared && !isDismissing ? 1 : 0

    function advance() {
        sheet.onboarding.advance();
        sheet.followFlow();
    }

    function skip() {
        sheet.onboarding.skip();
        sheet.followFlow();
    }

    function followFlow() {
        if (sheet.onboarding.isFinished)
            sheet.beginDismiss();
    }

    function beginDismiss() {
        if (sheet.isDismissing)
            return;
        sheet.isDismissing = true;
        end.start();
    }

    // Invisible; it names the sheet to a screen reader.
    title: sheet.onboarding.currentStep.title
    parent: Overlay.overlay
    // Centred, on whole pixels.
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: parent ? Math.min(AppTheme.sheetWidth, parent.width - 2 * AppTheme.pageMargin) : AppTheme.sheetWidth
    implicitHeight: contentHeight + topPadding + bottomPadding
    height: parent ? Math.min(implicitHeight, parent.height - 2 * AppTheme.smallSpace) : implicitHeight
    padding: AppTheme.pageMargin
    modal: true
    focus: true
    closePolicy: Popup.NoAutoClose
    opacity: presence
    Component.onCompleted: {
        sheet.open();
        sheet.hasAppeared = true;
    }

    Behavior on presence {
        enabled: sheet.isDismissing || !AppTheme.reduceMotion
        NumberAnimation {
            duration: AppTheme.sheetCloseDuration
            easing.type: sheet.isDismissing ? Easing.InQuad : Easing.OutQuad
        }
    }

    Timer {
        id: end

        interval: AppTheme.sheetCloseDuration
        onTriggered: {
            sheet.close();
            sheet.onboarding.dismiss();
        }
    }

    // The dimming is part of the sheet, so that both fade together.
    Overlay.modal: Item {}

    background: SheetSurface {
        Rectangle {
            x: -sheet.x
            y: -sheet.y
            z: -1
            width: sheet.parent?.width ?? 0
            height: sheet.parent?.height ?? 0
            color: AppTheme.dim
        }
    }

    contentItem: OnboardingPanel {
        onboarding: sheet.onboarding
        onForward: sheet.advance()
        onBack: sheet.onboarding.goBack()
        onSkip: sheet.skip()
    }
}
