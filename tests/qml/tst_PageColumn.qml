import QtQuick
import QtQuick.Layouts
import QtTest
import Loadwick

PageColumn {
    id: page

    width: 800
    height: 400

    Item {
        id: card

        Layout.fillWidth: true
    }

    TestCase {
        name: "PageColumn"
        when: windowShown

        readonly property Item bar: findChild(page, "scrollBar")

        function test_theBarShowsAndMovesThePartInView() {
            card.implicitHeight = 1600 - 2 * AppTheme.pageMargin;
            tryCompare(bar, "size", 0.25);
            compare(bar.visible, true);
            compare(bar.x + bar.width, page.width);
            page.viewport.contentY = 400;
            compare(bar.position, 0.25);
            mousePress(bar, bar.width / 2, bar.height - 1);
            mouseRelease(bar, bar.width / 2, bar.height - 1);
            tryCompare(page.viewport, "contentY", 1200);
        }

        function test_aPageThatFitsHasNoBar() {
            card.implicitHeight = 100;
            tryCompare(bar, "visible", false);
        }
    }
}
