import QtQuick
import QtTest
import Loadwick

// The common set-up of all tests of the long list, and helpers to see its rows and press one.
TestCase {
    id: test

    required property LongListScene stage
    readonly property LongList list: test.stage.list
    readonly property Flickable page: test.stage.page
    readonly property Item head: test.stage.head
    readonly property Item before: test.stage.before
    readonly property Item after: test.stage.after

    when: windowShown

    function init() {
        list.model = 0;
        list.currentIndex = -1;
        list.rowHeight = 30;
        list.isFilled = false;
        head.height = 120;
        page.contentY = 0;
        before.forceActiveFocus();
    }

    function show(count) {
        list.model = count;
        waitForRendering(test.stage);
    }

    // The indices of the rows in the page, from top to bottom; checks the position of each.
    function shownRows(height = 300) {
        const found = [];
        const view = findChild(list, "rows");
        view.forceLayout();
        for (let i = 0; i < view.contentItem.children.length; ++i) {
            const item = view.contentItem.children[i];
            if (item.objectName !== "row" || !item.visible)
                continue;
            const y = item.mapToItem(page, 0, 0).y;
            compare(y, 140 - 120 + head.height + item.index * 30 - page.contentY, "position of row " + item.index);
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

    function press(index) {
        mouseClick(findChild(list, "words" + index), 5, 5);
    }
}
