import QtQuick
import QtTest
import "support"

LongListScene {
    id: scene

    SignalSpy { id: copied; target: scene.list; signalName: "copyRequested" }

    LongListCase {
        name: "LongListKeys"
        stage: scene

        function test_aPressedRowGivesUpTheFocusWhenItLeaves() {
            show(10000);
            page.contentY = 3000;
            waitForRendering(scene);
            press(100);
            page.contentY = 3900;
            waitForRendering(scene);
            verify(list.activeFocus);
            compare(findChild(list, "rows").focusedRow(), null);
            page.contentY = 3000;
            waitForRendering(scene);
            compare(findChild(list, "rows").focusedRow(), null);
            compare(list.currentIndex, 100);
        }

        function test_isOneTabStop() {
            show(500);
            keyClick(Qt.Key_Tab);
            verify(list.activeFocus);
            compare(list.currentIndex, 0);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Tab);
            verify(after.activeFocus);
            keyClick(Qt.Key_Backtab);
            verify(list.activeFocus);
            compare(list.currentIndex, 2);
            keyClick(Qt.Key_Backtab);
            verify(before.activeFocus);
        }

        function test_anEmptyListIsNotATabStop() {
            show(0);
            keyClick(Qt.Key_Tab);
            verify(after.activeFocus);
        }

        function test_keysMoveTheCurrentRowAndStopAtTheEnds() {
            show(1000);
            list.forceActiveFocus();
            keyClick(Qt.Key_Up);
            compare(list.currentIndex, 0);
            keyClick(Qt.Key_Down);
            compare(list.currentIndex, 1);
            keyClick(Qt.Key_PageDown);
            compare(list.currentIndex, 10);
            keyClick(Qt.Key_PageUp);
            compare(list.currentIndex, 1);
            keyClick(Qt.Key_End);
            compare(list.currentIndex, 999);
            keyClick(Qt.Key_Down);
            compare(list.currentIndex, 999);
            keyClick(Qt.Key_Home);
            compare(list.currentIndex, 0);
        }

        function test_ignoresKeysThatMoveNothing_data() {
            return [
                { tag: "up", rows: 3, way: Qt.Key_Home, key: Qt.Key_Up },
                { tag: "page up", rows: 3, way: Qt.Key_Home, key: Qt.Key_PageUp },
                { tag: "home", rows: 3, way: Qt.Key_Home, key: Qt.Key_Home },
                { tag: "down", rows: 3, way: Qt.Key_End, key: Qt.Key_Down },
                { tag: "page down", rows: 3, way: Qt.Key_End, key: Qt.Key_PageDown },
                { tag: "end", rows: 3, way: Qt.Key_End, key: Qt.Key_End },
                { tag: "page down in one row", rows: 1, way: Qt.Key_Home, key: Qt.Key_PageDown }
            ];
        }

        function test_ignoresKeysThatMoveNothing(data) {
            show(data.rows);
            list.forceActiveFocus();
            keyClick(data.way);
            const index = list.currentIndex;
            scene.keysLeft = "";
            keyClick(data.key);
            compare(list.currentIndex, index);
            compare(scene.keysLeft, data.key + " ");
        }

        function test_acceptsKeysThatMove() {
            show(1000);
            list.forceActiveFocus();
            scene.keysLeft = "";
            for (const key of [Qt.Key_Down, Qt.Key_PageDown, Qt.Key_End, Qt.Key_Up, Qt.Key_PageUp, Qt.Key_Home])
                keyClick(key);
            compare(scene.keysLeft, "");
        }

        function test_scrollsThePageToTheCurrentRow_data() {
            return [{ tag: "long", count: 10000 }, { tag: "short", count: 50 }];
        }

        function test_scrollsThePageToTheCurrentRow(data) {
            show(data.count);
            list.forceActiveFocus();
            for (const key of [Qt.Key_End, Qt.Key_PageUp, Qt.Key_PageUp, Qt.Key_Down, Qt.Key_Home, Qt.Key_PageDown]) {
                keyClick(key);
                const y = 140 + list.currentIndex * 30 - page.contentY;
                verify(y >= 0 && y + 30 <= 300, "row " + list.currentIndex + " at " + y);
                compare(shownRows(), expectedRows());
            }
        }

        function test_aRowInSightDoesNotMoveThePage() {
            show(1000);
            list.forceActiveFocus();
            keyClick(Qt.Key_Down);
            compare(page.contentY, 0);
        }

        function test_theFocusIsOnTheRowForAScreenReader() {
            show(10000);
            list.forceActiveFocus();
            keyClick(Qt.Key_End);
            compare(scene.Window.activeFocusItem.Accessible.name, "Row 9999");
            keyClick(Qt.Key_Up);
            compare(scene.Window.activeFocusItem.Accessible.name, "Row 9998");
        }

        function test_keysContinueAfterTheCurrentRowWasScrolledAway() {
            show(10000);
            list.forceActiveFocus();
            keyClick(Qt.Key_Down);
            page.contentY = 100000;
            waitForRendering(scene);
            verify(list.activeFocus);
            keyClick(Qt.Key_Down);
            compare(list.currentIndex, 2);
            compare(scene.Window.activeFocusItem.Accessible.name, "Row 2");
            verify(page.contentY < 300);
        }

        function test_aPressInARowKeepsTheFocusAndThePageWhereTheyAre() {
            show(10000);
            page.contentY = 3000;
            waitForRendering(scene);
            press(100);
            compare(scene.Window.activeFocusItem.objectName, "words100");
            compare(page.contentY, 3000);
        }

        function test_keysContinueFromThePressedRow() {
            show(10000);
            page.contentY = 3000;
            waitForRendering(scene);
            press(100);
            press(102);
            compare(list.currentIndex, 102);
            keyClick(Qt.Key_Down);
            compare(list.currentIndex, 103);
            compare(scene.Window.activeFocusItem.Accessible.name, "Row 103");
        }

        function test_ringsTheCurrentRowWhileItHasTheFocus() {
            show(1000);
            const ring = findChild(list, "ring");
            verify(!ring.visible);
            list.forceActiveFocus();
            keyClick(Qt.Key_Down);
            verify(ring.visible);
            compare(ring.mapToItem(list, 0, 0).y, 30);
            compare(ring.height, 30);
            before.forceActiveFocus();
            verify(!ring.visible);
        }

        function test_asksForTheCurrentRowToBeCopied() {
            show(1000);
            list.forceActiveFocus();
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(copied.count, 1);
            compare(copied.signalArguments[0][0], 1);
        }

        function test_fewerRowsClampTheCurrentRow() {
            show(1000);
            list.currentIndex = 900;
            show(10);
            compare(list.currentIndex, 9);
            show(0);
            compare(list.currentIndex, -1);
        }
    }
}
