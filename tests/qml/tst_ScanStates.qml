import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 800
    height: 600

    ScanEmptyState { id: empty; anchors.fill: parent; title: "Start a context scan"; detail: "Choose."; visible: false }
    ScanLoadingState { id: loading; anchors.fill: parent; visible: false }
    ScanFailureState { id: failure; anchors.fill: parent; headline: "It failed"; detail: "<b>Why</b>"; visible: false }

    TestCase {
        name: "ScanStates"
        when: windowShown

        function cleanup() {
            empty.visible = loading.visible = failure.visible = false;
            empty.note = "";
            failure.detail = "<b>Why</b>";
        }

        function texts(item) {
            let found = [];
            for (let i = 0; i < item.children.length; ++i) {
                const child = item.children[i];
                if (!child.visible)
                    continue;
                if (typeof child.text === "string" && child.text.length > 0)
                    found.push(child.text);
                found = found.concat(texts(child));
            }
            return found;
        }

        function test_emptyShowsItsTitleAndDetail() {
            empty.visible = true;
            compare(texts(empty), ["Start a context scan", "Choose."]);
        }

        function test_emptyHasRoomForANote() {
            empty.visible = true;
            empty.note = "One session is used.";
            compare(texts(empty), ["Start a context scan", "Choose.", "One session is used."]);
        }

        function test_loadingSaysWhatHappens() {
            loading.visible = true;
            compare(texts(loading), ["Scanning repository",
                "Running one real Claude Code session and measuring local instruction files."]);
        }

        function test_failureComposesNoTextOfItsOwn() {
            failure.visible = true;
            compare(failure.title, "It failed");
            const shown = texts(failure).filter(function (text) { return text !== "…"; });
            verify(shown.every(function (text) { return text === "It failed" || text === "<b>Why</b>"; }));
        }

        function test_aFailureHasRoomForWhatHoldsOnThisSystem() {
            failure.visible = true;
            failure.platformNote = "On this system:";
            verify(texts(failure).includes("On this system:"));
            failure.platformNote = "";
            verify(!texts(failure).includes("On this system:"));
        }

        function test_iconsHaveTheirTints() {
            compare(empty.tint, AppTheme.secondaryText);
            compare(loading.tint, AppTheme.accent);
            compare(failure.tint, AppTheme.bandExcessive);
        }

        function test_theGroupIsALittleAboveTheMiddle() {
            empty.visible = true;
            waitForRendering(empty);
            const group = empty.children[0];
            const middle = group.y + group.height / 2;
            verify(Math.abs(middle - 0.45 * empty.height) <= 1);
            verify(group.width <= 420);
        }

        function detailOf(item) {
            if (item.lineSpacing !== undefined)
                return item;
            for (let i = 0; i < item.children.length; ++i) {
                const found = detailOf(item.children[i]);
                if (found !== null)
                    return found;
            }
            return null;
        }

        function test_aDetailOfSeveralLinesIsNotCentred() {
            failure.visible = true;
            compare(detailOf(failure).horizontalAlignment, TextEdit.AlignHCenter);
            failure.detail = "Looked in:\n  • /usr/bin/claude";
            compare(detailOf(failure).horizontalAlignment, TextEdit.AlignLeft);
            waitForRendering(failure);
            const list = detailOf(failure);
            const middle = list.mapToItem(failure, list.width / 2, 0).x;
            verify(list.width < 300);
            verify(Math.abs(middle - failure.width / 2) <= 1);
        }

        function test_aLongDetailScrollsInsideThePage() {
            failure.visible = true;
            failure.detail = "A long story. ".repeat(400);
            waitForRendering(failure);
            const group = failure.children[0];
            tryVerify(function () { return group.height > 300 && group.y + group.height <= failure.height; });
            verify(group.y >= 0);
        }
    }
}
