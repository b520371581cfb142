import QtQuick
import Loadwick

// Animates the arrival of its page: it fades in and rises 8 px, once, when first visible.
Item {
    id: page

    default property alias content: body.data
    property bool hasAppeared: false
    readonly property bool animated: !AppTheme.reduceMotion

    function appear() {
        if (page.visible)
            page.hasAppeared = true;
    }

    onVisibleChanged: appear()
    Component.onCompleted: appear()

    Item {
        id: body

        anchors.fill: parent
        opacity: page.hasAppeared ? 1 : 0
        transform: Translate {
            y: page.hasAppeared ? 0 : 8

            Behavior on y {
                enabled: page.animated
                NumberAnimation { duration: AppTheme.pageDuration; easing.type: Easing.OutQuad }
            }
        }

        Behavior on opacity {
            enabled: page.animated
            NumberAnimation { duration: AppTheme.pageDuration; easing.type: Easing.OutQuad }
        }
    }
}
