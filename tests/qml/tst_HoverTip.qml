import QtQuick
import QtQuick.Templates
import QtTest
import Loadwick

Item {
    id: scene
    width: 300
    height: 200

    Item {
        id: wordy
        width: 100; height: 40
        HoverTip { id: tip; words: "<b>/srv/one</b>" }
    }
    Item {
        id: silent
        y: 60; width: 100; height: 40
        HoverTip { id: nothing; words: "" }
    }

    Item {
        id: crowd
        y: 120; width: 100; height: 40
        Item { id: one; width: 50; height: 40 }
        Item { id: other; x: 50; width: 50; height: 40 }
        HoverTip { id: forAll; words: "Of one"; about: forAll.point.position.x < 50 ? one : other }
    }

    Item {
        id: asker
        x: 120; width: 100; height: 40
        HoverTip { id: asked; words: "asked"; wanted: false }
    }

    Component {
        id: plain
        PlainToolTip { }
    }

    TestCase {
        name: "HoverTip"
        when: windowShown

        function toolTipOf(item) {
            return item.shown;
        }

        function init() {
            mouseMove(scene, 290, 190);
            tryVerify(function () { return toolTipOf(tip) === null; });
        }

        function test_createsNoToolTipBeforeThePointerEnters() {
            compare(toolTipOf(tip), null);
        }

        function test_hoveringShowsTheWordsVerbatim() {
            mouseMove(wordy, 20, 20);
            tryVerify(function () { return toolTipOf(tip) !== null; });
            tryCompare(toolTipOf(tip), "opened", true);
            compare(toolTipOf(tip).words, "<b>/srv/one</b>");
            compare(toolTipOf(tip).contentItem.textFormat, Text.PlainText);
        }

        function test_isAttachedToItsSubject() {
            mouseMove(crowd, 20, 20);
            tryVerify(function () { return toolTipOf(forAll) !== null && toolTipOf(forAll).parent === one; });
            mouseMove(crowd, 70, 20);
            tryVerify(function () { return toolTipOf(forAll).parent === other; });
        }

        function test_withoutWordsThereIsNoToolTip() {
            mouseMove(silent, 20, 20);
            wait(50);
            compare(toolTipOf(nothing), null);
        }

        function test_changedWordsShowAtOnce() {
            mouseMove(wordy, 20, 20);
            tryVerify(function () { return toolTipOf(tip) !== null; });
            tip.words = "/srv/two";
            compare(toolTipOf(tip).words, "/srv/two");
            tip.words = "";
            compare(toolTipOf(tip), null);
            tip.words = "<b>/srv/one</b>";
        }

        function test_itsConditionCanBeReplaced() {
            compare(toolTipOf(asked), null);
            asked.wanted = true;
            compare(toolTipOf(asked).words, "asked");
            asked.wanted = false;
            compare(toolTipOf(asked), null);
        }

        function test_hidesWhereItsSubjectLeavesTheWindow() {
            asked.wanted = true;
            verify(toolTipOf(asked) !== null);
            asker.parent = null;
            compare(toolTipOf(asked), null);
            asker.parent = scene;
            asked.wanted = false;
        }

        function test_showsMarkupVerbatim() {
            const tip = createTemporaryObject(plain, scene, { words: "<img src=x>" });
            compare(tip.text, "");
            compare(tip.contentItem.textFormat, Text.PlainText);
            compare(tip.contentItem.text, "<img src=x>");
        }

        function test_timesOutWhileTheFocusStays() {
            const tip = createTemporaryObject(plain, scene, { words: "a", delay: 0, timeout: 50 });
            tip.visible = true;
            tryCompare(tip, "opened", true);
            tryCompare(tip, "visible", false);
            compare(createTemporaryObject(plain, scene, { words: "a" }).timeout, 10000);
        }

        function test_isNeverWiderThanAComfortableLine() {
            const tip = createTemporaryObject(plain, scene, { words: "word ".repeat(80) });
            compare(tip.implicitWidth, 320);
        }

        function test_theToolTipHidesWhenThePointerLeaves() {
            mouseMove(wordy, 20, 20);
            tryVerify(function () { return toolTipOf(tip) !== null; });
            mouseMove(scene, 290, 190);
            tryVerify(function () { return toolTipOf(tip) === null; });
        }
    }
}
