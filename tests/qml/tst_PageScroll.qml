import QtQuick
import QtQuick.Templates
import QtTest
import Loadwick

Item {
    id: scene
    width: 600
    height: 400

    Button {
        id: outside
        parent: scene.Window.contentItem
        y: 360
        height: 30
        text: "Outside"
    }
    PageColumn {
        id: page
        width: 600
        height: 350

        Button { id: first; text: "First"; implicitHeight: 40 }
        Item {
            id: tall
            implicitWidth: 100
            implicitHeight: 900
            activeFocusOnTab: true
        }
        Button { id: last; text: "Last"; implicitHeight: 40 }
        CollapsibleSection {
            id: section
            title: "More"

            Item { implicitWidth: 100; implicitHeight: 200 }
        }
    }

    TestCase {
        name: "PageScroll"
        when: windowShown

        readonly property real end: page.viewport.contentHeight - page.viewport.height

        function init() {
            page.visible = true;
            page.viewport.contentY = 0;
            first.forceActiveFocus();
            wait(0);
            compare(page.viewport.contentY, 0);
        }

        function isInSight(item) {
            const top = item.mapToItem(page.viewport, 0, 0).y;
            return top >= 0 && top + item.height <= page.viewport.height;
        }

        function test_scrollKeysScroll_data() {
            return [
                { tag: "down", keys: [Qt.Key_Down], y: 48 },
                { tag: "down and up", keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Up], y: 48 },
                { tag: "up at the top", keys: [Qt.Key_Up], y: 0 },
                { tag: "page down", keys: [Qt.Key_PageDown], y: 350 - 32 },
                { tag: "page down and up", keys: [Qt.Key_PageDown, Qt.Key_PageUp], y: 0 },
                { tag: "end", keys: [Qt.Key_End], y: end },
                { tag: "down at the end", keys: [Qt.Key_End, Qt.Key_Down], y: end },
                { tag: "end and home", keys: [Qt.Key_End, Qt.Key_Home], y: 0 }
            ];
        }

        function test_scrollKeysScroll(data) {
            for (const key of data.keys)
                keyClick(key);
            compare(page.viewport.contentY, data.y);
        }

        function test_otherKeysDoNotScroll() {
            keyClick(Qt.Key_A);
            compare(page.viewport.contentY, 0);
        }

        function test_scrollsWhileTheFocusIsOutside() {
            outside.forceActiveFocus();
            keyClick(Qt.Key_PageDown);
            compare(page.viewport.contentY, 350 - 32);
            keyClick(Qt.Key_PageUp);
            compare(page.viewport.contentY, 0);
            keyClick(Qt.Key_End);
            compare(page.viewport.contentY, end);
            keyClick(Qt.Key_Home);
            compare(page.viewport.contentY, 0);
        }

        function test_aHiddenPageDoesNotScroll() {
            outside.forceActiveFocus();
            page.visible = false;
            keyClick(Qt.Key_PageDown);
            compare(page.viewport.contentY, 0);
        }

        function test_scrollsToTheFocusedItem() {
            verify(!isInSight(last));
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Tab);
            verify(last.activeFocus);
            tryVerify(() => isInSight(last));
            keyClick(Qt.Key_Backtab);
            keyClick(Qt.Key_Backtab);
            verify(first.activeFocus);
            tryVerify(() => isInSight(first));
        }

        function test_scrollsToAnOpenedSection() {
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Tab);
            tryVerify(() => isInSight(section));
            keyClick(Qt.Key_Space);
            verify(section.isExpanded);
            tryVerify(() => section.height > 200 && isInSight(section));
            last.forceActiveFocus();
            section.children[0].forceActiveFocus();
            wait(20);
            page.viewport.contentY = 0;
            tall.implicitHeight += 50;
            wait(50);
            compare(page.viewport.contentY, 0);
            tall.implicitHeight -= 50;
            section.isExpanded = false;
            wait(50);
        }

        function test_anItemTallerThanThePageDoesNotMove() {
            page.viewport.contentY = 300;
            tall.forceActiveFocus();
            wait(20);
            compare(page.viewport.contentY, 300);
        }

        function test_nothingMovesUnderAPressedPointer() {
            page.viewport.contentY = 30;
            const position = first.mapToItem(scene, 0, 0);
            mousePress(scene, position.x + 5, position.y + 35);
            verify(first.activeFocus);
            wait(20);
            compare(page.viewport.contentY, 30);
            mouseRelease(scene, position.x + 5, position.y + 35);
        }

        function test_focusElsewhereMovesNothing() {
            page.viewport.contentY = 200;
            outside.forceActiveFocus();
            wait(20);
            compare(page.viewport.contentY, 200);
        }
    }
}
