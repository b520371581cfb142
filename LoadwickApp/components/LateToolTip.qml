import QtQuick
import Loadwick

// A tool tip that is made when it is first wanted: of most windows none ever is. It hangs at the item
// that it is in.
Loader {
    id: tip

    // Nothing is said while these are empty.
    required property string words
    required property bool wanted

    function showOrHide() {
        tip.source = "";
        if (tip.wanted && tip.words.length > 0)
            tip.setSource("PlainToolTip.qml", { words: tip.words, visible: true });
    }

    anchors.fill: parent
    onWantedChanged: tip.showOrHide()
    onWordsChanged: if (tip.wanted) tip.showOrHide()
}
