import QtQuick
import QtTest
import "support"

LongListScene {
    id: scene

    LongListCase {
        name: "LongList"
        stage: scene

        function test_isAsHighAsAllItsRows() {
            show(10000);
            compare(list.implicitHeight, 300000);
            show(0);
            compare(list.implicitHeight, 0);
        }

        function test_createsOnlyVisibleRows() {
            show(10000);
            for (const contentY of [0, 1, 119, 120, 155, 5000, 150001, 299999, 300340 - 300, 40, 0]) {
                page.contentY = contentY;
                compare(shownRows(), expectedRows(), "at " + contentY);
                verify(scene.rowCount < 100, scene.rowCount + " rows at " + contentY);
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

        // A row of 30 leaves the page with each step but the first few, and another one appears.

        function test_reusesRowsThatHaveLeftThePage() {
            show(10000);
            page.contentY = 3000;
            waitForRendering(scene);
            page.contentY += 90;
            const before = scene.createdCount;
            for (let step = 0; step < 40; ++step) {
                page.contentY += step % 2 ? 85 : 95;
                waitForRendering(scene, 50);
                compare(shownRows(), expectedRows());
            }
            verify(scene.createdCount - before < 15, scene.createdCount - before + " rows created");
        }

        function test_createsHardlyAnyRowsInAdvance_data() {
            return [{ tag: "of use soon", isFilled: true, most: 12 }, { tag: "perhaps never", isFilled: false, most: 2 }];
        }

        function test_createsHardlyAnyRowsInAdvance(data) {
            list.isFilled = data.isFilled;
            head.height = 9000;
            findChild(list, "rows").mostSeenRows = 0;
            waitForRendering(scene);
            show(10000);
            compare(shownRows(), []);
            verify(scene.rowCount <= data.most, scene.rowCount + " rows");
            compare(scene.rowCount > 9, data.isFilled);
            page.contentY = 8800;
            compare(shownRows(), expectedRows());
            list.isFilled = false;
        }

        function test_createsNoRowsWithoutAHeight() {
            list.rowHeight = 0;
            show(10000);
            verify(scene.rowCount < 3, scene.rowCount + " rows");
            list.rowHeight = 30;
            compare(shownRows(), expectedRows());
            verify(scene.rowCount < 100, scene.rowCount + " rows");
        }

        function test_followsContentAboveItOnThePage() {
            show(10000);
            page.contentY = 3000;
            head.height = 500;
            waitForRendering(scene);
            compare(shownRows(), expectedRows());
            compare(shownRows()[0], 82);
        }

        function test_showsMoreRowsInATallerPage() {
            show(10000);
            page.contentY = 600;
            page.height = 400;
            compare(shownRows()[0], 15);
            compare(shownRows(400).length, 14);
            page.height = 300;
        }

        function test_aShortListExistsAsAWhole() {
            show(60);
            verify(scene.rowCount <= 14, "rows below the page delay no frame");
            tryCompare(scene, "rowCount", 60);
            page.contentY = 700;
            compare(scene.rowCount, 60);
            compare(shownRows(), expectedRows());
        }

        function test_showsANewModelAtOnce() {
            show(10000);
            page.contentY = 9000;
            show(70);
            compare(shownRows(), expectedRows());
            page.contentY = 0;
            show(3);
            compare(shownRows(), [0, 1, 2]);
            compare(scene.rowCount, 3);
        }

        function test_highlightsTheReferredRow() {
            show(1000);
            const mark = findChild(list, "mark");
            verify(!mark.visible);
            list.markedIndex = 4;
            verify(mark.visible);
            compare(mark.mapToItem(list, 0, 0).y, 120);
            list.markedIndex = -1;
        }
    }
}
