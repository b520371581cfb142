import QtQuick
import QtQuick.Layouts
import Loadwick

// The card that holds every section of every page; its children form one column.
Item {
    id: card

    default property alias content: column.data
    property alias spacing: column.spacing
    property bool isHovering: pointer.hovered
    // Created when a pointer first enters.
    property Item shadow: null

    function castShadow() {
        if (card.isHovering && !card.shadow)
            card.shadow = maker.createObject(card, { shown: Qt.binding(() => card.isHovering) }) as Item;
    }

    implicitWidth: column.implicitWidth + 2 * AppTheme.cardPadding
    implicitHeight: column.implicitHeight + 2 * AppTheme.cardPadding
    onIsHoveringChanged: card.castShadow()
    Component.onCompleted: card.castShadow()

    Rectangle {
        anchors.fill: parent
        radius: AppTheme.cardRadius
        // A wash of the text colour, from 0.05 at the top to 0, premixed with the ground.
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.tint(AppTheme.surface, Qt.alpha(AppTheme.text, 0.05)) }
            GradientStop { position: 1; color: AppTheme.surface }
        }
    }

    Rectangle {
        objectName: "border"
        anchors.fill: parent
        radius: AppTheme.cardRadius
        color: "transparent"
        border { width: AppTheme.hairline; color: AppTheme.separator }
        opacity: card.isHovering ? 1 : AppTheme.quietBorderOpacity

        Behavior on opacity {
            enabled: !AppTheme.reduceMotion
            NumberAnimation { duration: AppTheme.hoverDuration; easing.type: Easing.OutQuad }
        }
    }

    // Black at 0.16, blurred over 16, a third of that lower. The blur is constant: only its opacity
    // changes, which costs nothing in any renderer.
    Component {
        id: maker

        BorderImage {
            id: shadow

            required property bool shown
            // Created transparent, so that it fades in as it fades out.
            property bool isMade: false

            objectName: "shadow"
            anchors { fill: parent; margins: -24; topMargin: -24 + 16 / 3; bottomMargin: -24 - 16 / 3 }
            z: -1
            border { left: 50; top: 50; right: 50; bottom: 50 }
            source: "qrc:/qt/qml/Loadwick/components/card-shadow.png"
            opacity: shadow.shown && shadow.isMade ? 0.16 : 0
            visible: opacity > 0
            Component.onCompleted: shadow.isMade = true

            Behavior on opacity {
                enabled: !AppTheme.reduceMotion
                NumberAnimation { duration: AppTheme.hoverDuration; easing.type: Easing.OutQuad }
            }
        }
    }

    HoverHandler { id: pointer }

    ColumnLayout {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: AppTheme.cardPadding }
        spacing: AppTheme.mediumSpace
    }
}
