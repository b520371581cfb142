import QtQuick
import Loadwick

// Says more about its parent. The tool tip itself exists only while it is visible, so that a long
// list of items costs next to nothing.
HoverHandler {
    id: tip

    // No tip while these are empty.
    required property string words
    // The item the tip points at, if one item handles the pointer for many.
    property Item about: tip.parent
    property bool wanted: tip.hovered
    // A row that a list keeps for later has no window to open the tip in.
    readonly property bool isDue: tip.wanted && tip.words.length > 0 && tip.about !== null
                                  && tip.about.Window.window !== null
    property PlainToolTip shown: null

    function showOrHide() {
        if (tip.shown)
            tip.shown.destroy();
        tip.shown = tip.isDue ? tip.make() : null;
    }

    function make() {
        const maker = Qt.createComponent("PlainToolTip.qml");
        return maker.createObject(tip.parent, { parent: tip.about, words: tip.words, visible: true }) as PlainToolTip;
    }

    onIsDueChanged: tip.showOrHide()
    onWordsChanged: tip.showOrHide()
    onAboutChanged: tip.showOrHide()
}
