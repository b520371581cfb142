import QtQuick
import QtQuick.Layouts
import Loadwick

// The card that holds every section of every page; its children stand in one column.
Item {
    id: card

    default property alias content: column.data
    property alias spacing: column.spacing
    property bool isHovering: pointer.hovered
    // Made when a pointer first comes.
    property CardShadow shadow: null

    function castShadow() {
        if (card.isHovering && !card.shadow)
            card.shadow = Qt.createComponent("CardShadow.qml").createObject(card, { shown: Qt.binding(() => card.isHovering) }) as CardShadow;
    }

    implicitWidth: column.implicitWidth + 2 * AppTheme.cardPadding
    implicitHeight: column.implicitHeight + 2 * AppTheme.cardPadding
    onIsHoveringChanged: card.castShadow()
    Component.onCompleted: card.castShadow()

    Rectangle {
        anchors.fill: parent
        radius: AppTheme.cardRadius
        // The wash of the text colour, 0.05 at the top to nothing, already mixed with the ground.
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

    HoverHandler { id: pointer }

    ColumnLayout {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: AppTheme.cardPadding }
        spacing: AppTheme.mediumSpace
    }
}
