pragma Singleton
import QtQuick

QtObject {
    readonly property int hairline: 1
}
