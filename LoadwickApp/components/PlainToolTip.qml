import QtQuick
import QtQuick.Templates
import Loadwick

// A tool tip in plain text: `words`, because the control's own text accepts markup.
ToolTip {
    id: control

    required property string words

    delay: 600
    // Without it, the tool tip of the focused item would cover the page for good.
    timeout: 10000
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutsideParent | Popup.CloseOnReleaseOutsideParent
    x: parent ? (parent.width - implicitWidth) / 2 : 0
    y: -implicitHeight - 3
    margins: 6
    padding: AppTheme.smallSpace
    contentItem: PlainLabel {
        text: control.words
        // Without the marks that order a path's folders on the screen.
        Accessible.name: text.replace(/\u200E/g, "")
        font: AppTheme.captionFont
        wrapMode: Text.Wrap
    }
    // Never wider than a comfortable line.
    implicitWidth: Math.min(implicitContentWidth + leftPadding + rightPadding, AppTheme.scaled(320))
    implicitHeight: contentHeight + topPadding + bottomPadding
    background: Rectangle {
        color: AppTheme.surface
        radius: AppTheme.controlRadius
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }
}
