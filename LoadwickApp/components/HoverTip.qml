import QtQuick
import Loadwick

// Says more about the item it is in while the pointer is on that. The tool tip itself is made only
// then, so that a long list of items costs next to nothing.
HoverHandler {
    id: tip

    // Nothing is said while these are empty.
    required property string words
    // What they are about: where many items are in one that answers the pointer for all.
    property Item about: tip.parent
    readonly property bool wanted: tip.hovered && tip.words.length > 0
    property PlainToolTip shown: null

    function showOrHide() {
        if (tip.shown)
            tip.shown.destroy();
        tip.shown = tip.wanted ? tip.make() : null;
    }

    function make() {
        const maker = Qt.createComponent("PlainToolTip.qml");
        return maker.createObject(tip.parent, { parent: tip.about, words: tip.words, visible: true }) as PlainToolTip;
    }

    onWantedChanged: tip.showOrHide()
    onWordsChanged: tip.showOrHide()
    onAboutChanged: tip.showOrHide()
}
