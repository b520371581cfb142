import QtQuick
import Loadwick

// Says more about the item it fills while the pointer is on it. The tool tip itself is made only
// then, so that a long list of items costs none.
Item {
    id: tip

    // Nothing is said while these are empty.
    required property string words
    readonly property bool wanted: pointer.hovered && tip.words.length > 0

    function showOrHide() {
        if (tip.wanted)
            holder.setSource("PlainToolTip.qml", { parent: tip, words: tip.words, visible: true });
        else
            holder.source = "";
    }

    anchors.fill: parent
    Accessible.ignored: true
    onWantedChanged: tip.showOrHide()
    onWordsChanged: tip.showOrHide()

    HoverHandler { id: pointer }

    Loader { id: holder }
}
