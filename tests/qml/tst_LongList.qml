import QtQuick
import QtQuick.Controls
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 400

    property string keysLeft: ""
    Keys.onPressed: event => { scene.keysLeft += event.key + " "; }

    Button {
        id: before
        y: -50
        text: "Before"
    }
    Flickable {
        id: page
        width: 400
        height: 300
        contentHeight: column.height

        Column {
            id: column
            width: 400

            Rectangle { id: head; width: 400; height: 120 }
            Item {
                width: 400
                height: list.implicitHeight + 20

                LongList {
                    id: list

                    y: 20
                    width: 400
                    height: implicitHeight
                    viewport: page
                    rowHeight: 30
                    model: 0
                    Accessible.name: "Numbers"
                    delegate: Item {
                        id: row
                        required property int index
                        objectName: "row"
                        width: list.width
                        height: 30
                        Accessible.role: Accessible.ListItem
                        Accessible.name: "Row " + row.index
                        TextInput { objectName: "words" + row.index; width: 100; text: "Words" }
                        Component.onCompleted: {
                            scene.made += 1;
                            scene.makings += 1;
                        }
                        Component.onDestruction: scene.made -= 1
                        ListView.onPooled: row.visible = false
                        ListView.onReused: row.visible = true
                    }
                }
            }
            Item { width: 400; height: 200 }
        }
    }
    Button {
        id: after
        y: 340
        text: "After"
    }

    property int made: 0
    // Ever.
    property int makings: 0

    SignalSpy { id: copied; target: list; signalName: "copyRequested" }

    TestCase {
        name: "LongList"
        when: windowShown

        function init() {
            list.model = 0;
            list.currentIndex = -1;
            list.rowHeight = 30;
            list.isFilled = false;
            head.height = 120;
            page.contentY = 0;
            before.forceActiveFocus();
            copied.clear();
        }

        function show(count) {
            list.model = count;
            waitForRendering(scene);
        }

        // The rows in the page, from top to bottom, each where its number says.
        function shownRows(height = 300) {
            const found = [];
            const view = findChild(list, "rows");
            view.forceLayout();
            for (let i = 0; i < view.contentItem.children.length; ++i) {
                const item = view.contentItem.children[i];
                if (item.objectName !== "row" || !item.visible)
                    continue;
                const y = item.mapToItem(page, 0, 0).y;
                compare(y, 140 - 120 + head.height + item.index * 30 - page.contentY, "place of row " + item.index);
                if (y + 30 > 0 && y < height)
                    found.push(item.index);
            }
            return found.sort((a, b) => a - b);
        }

        function expectedRows() {
            const start = head.height + 20;
            const found = [];
            for (let i = 0; i < list.count; ++i) {
                const y = start + i * 30 - page.contentY;
                if (y + 30 > 0 && y < 300)
                    found.push(i);
            }
            return found;
        }

        function test_isAsHighAsAllItsRows() {
            show(10000);
            compare(list.implicitHeight, 300000);
            show(0);
            compare(list.implicitHeight, 0);
        }

        function test_makesOnlyTheRowsThatThePageShows() {
            show(10000);
            for (const contentY of [0, 1, 119, 120, 155, 5000, 150001, 299999, 300340 - 300, 40, 0]) {
                page.contentY = contentY;
                compare(shownRows(), expectedRows(), "at " + contentY);
                verify(scene.made < 100, scene.made + " rows at " + contentY);
                waitForRendering(scene, 100);
                compare(shownRows(), expectedRows(), "rendered at " + contentY);
            }
        }

        function test_showsTheRightRowsWhileItScrollsInSmallSteps() {
            show(10000);
            for (let contentY = 0; contentY < 1500; contentY += 37) {
                page.contentY = contentY;
                compare(shownRows(), expectedRows(), "at " + contentY);
            }
            for (let contentY = 1500; contentY > 0; contentY -= 53) {
                page.contentY = contentY;
                compare(shownRows(), expectedRows(), "back at " + contentY);
            }
        }

        // A row of 30 leaves the page with each step but the first ones and another one comes.
        function test_takesRowsThatHaveLeftThePageForThoseThatCome() {
            show(10000);
            page.contentY = 3000;
            waitForRendering(scene);
            page.contentY += 90;
            const before = scene.makings;
            for (let step = 0; step < 40; ++step) {
                page.contentY += step % 2 ? 85 : 95;
                waitForRendering(scene, 50);
                compare(shownRows(), expectedRows());
            }
            verify(scene.makings - before < 15, scene.makings - before + " rows made");
        }

        function test_makesNextToNoRowsBeforeThePageShowsThem_data() {
            return [{ tag: "of use soon", isFilled: true, most: 12 }, { tag: "perhaps never", isFilled: false, most: 2 }];
        }

        function test_makesNextToNoRowsBeforeThePageShowsThem(data) {
            list.isFilled = data.isFilled;
            head.height = 9000;
            findChild(list, "rows").mostSeenRows = 0;
            waitForRendering(scene);
            show(10000);
            compare(shownRows(), []);
            verify(scene.made <= data.most, scene.made + " rows");
            compare(scene.made > 9, data.isFilled);
            page.contentY = 8800;
            compare(shownRows(), expectedRows());
            list.isFilled = false;
        }

        function test_rowsWithoutAHeightAreNone() {
            list.rowHeight = 0;
            show(10000);
            verify(scene.made < 3, scene.made + " rows");
            list.rowHeight = 30;
            compare(shownRows(), expectedRows());
            verify(scene.made < 100, scene.made + " rows");
        }

        function test_aPressedRowThatLeavesGivesTheFocusBackToTheList() {
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

        function test_followsWhatStandsAboveItOnThePage() {
            show(10000);
            page.contentY = 3000;
            head.height = 500;
            waitForRendering(scene);
            compare(shownRows(), expectedRows());
            compare(shownRows()[0], 82);
        }

        function test_showsMoreRowsInAHigherPage() {
            show(10000);
            page.contentY = 600;
            page.height = 400;
            compare(shownRows()[0], 15);
            compare(shownRows(400).length, 14);
            page.height = 300;
        }

        function test_aShortListIsAllThere() {
            show(60);
            compare(scene.made, 60);
            page.contentY = 700;
            compare(scene.made, 60);
            compare(shownRows(), expectedRows());
        }

        function test_takesOtherRowsAtOnce() {
            show(10000);
            page.contentY = 9000;
            show(70);
            compare(shownRows(), expectedRows());
            page.contentY = 0;
            show(3);
            compare(shownRows(), [0, 1, 2]);
            compare(scene.made, 3);
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

        function test_anEmptyListIsNoTabStop() {
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

        function test_keysThatMoveNothingAreLeftToThePage_data() {
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

        function test_keysThatMoveNothingAreLeftToThePage(data) {
            show(data.rows);
            list.forceActiveFocus();
            keyClick(data.way);
            const index = list.currentIndex;
            scene.keysLeft = "";
            keyClick(data.key);
            compare(list.currentIndex, index);
            compare(scene.keysLeft, data.key + " ");
        }

        function test_keysThatMoveAreNotLeftToThePage() {
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

        function test_theFocusIsOnTheRowThatAScreenReaderIsToRead() {
            show(10000);
            list.forceActiveFocus();
            keyClick(Qt.Key_End);
            compare(scene.Window.activeFocusItem.Accessible.name, "Row 9999");
            keyClick(Qt.Key_Up);
            compare(scene.Window.activeFocusItem.Accessible.name, "Row 9998");
        }

        function test_keysGoOnAfterTheCurrentRowWasScrolledAway() {
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

        function press(index) {
            mouseClick(findChild(list, "words" + index), 5, 5);
        }

        function test_aPressInARowKeepsTheFocusAndThePageWhereTheyAre() {
            show(10000);
            page.contentY = 3000;
            waitForRendering(scene);
            press(100);
            compare(scene.Window.activeFocusItem.objectName, "words100");
            compare(page.contentY, 3000);
        }

        function test_theKeysGoOnFromTheRowThatWasPressed() {
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

        function test_marksTheRowThatIsSpokenOfBesideIt() {
            show(1000);
            const mark = findChild(list, "mark");
            verify(!mark.visible);
            list.markedIndex = 4;
            verify(mark.visible);
            compare(mark.mapToItem(list, 0, 0).y, 120);
            list.markedIndex = -1;
        }

        function test_asksForTheCurrentRowToBeCopied() {
            show(1000);
            list.forceActiveFocus();
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(copied.count, 1);
            compare(copied.signalArguments[0][0], 1);
        }

        function test_fewerRowsTakeTheCurrentOneBack() {
            show(1000);
            list.currentIndex = 900;
            show(10);
            compare(list.currentIndex, 9);
            show(0);
            compare(list.currentIndex, -1);
        }
    }
}
