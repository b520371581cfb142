import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 500
    height: 300

    readonly property string longPath: "/home/somebody/" + "folder/".repeat(20) + "CLAUDE.md"

    ElidedPath { id: short; width: 400; text: "/srv/<b>app</b>/CLAUDE.md" }
    ElidedPath { id: long; y: 40; width: 200; text: scene.longPath }
    ElidedPath { id: listed; y: 80; width: 200; text: scene.longPath; tabStop: false }
    ElidedPath { id: last; y: 120; width: 200; text: "/last" }

    TestCase {
        name: "ElidedPath"
        when: windowShown

        function label(path) {
            return path.children[0];
        }

        function edit(path) {
            return path.children[1];
        }

        function init() {
            scene.forceActiveFocus();
            mouseMove(scene, 490, 290);
        }

        function test_leavesOutTheMiddleOfALongPath() {
            verify(long.truncated);
            compare(label(long).elide, Text.ElideMiddle);
            compare(label(long).lineCount, 1);
            verify(!short.truncated);
        }

        function test_showsMarkupLetterByLetter() {
            compare(label(short).textFormat, Text.PlainText);
            compare(edit(short).displayText, "/srv/<b>app</b>/CLAUDE.md");
        }

        function test_aPressSelectsTheWholePath() {
            mouseClick(long, 20, 5);
            verify(long.selecting);
            compare(long.selectedText, scene.longPath);
            verify(!label(long).visible);
        }

        function test_theSecondPressSelectsAPart() {
            mouseClick(short, 20, 5);
            mouseDoubleClickSequence(edit(short), 20, 5);
            verify(short.selectedText.length > 0);
            verify(short.selectedText.length < short.text.length);
        }

        function test_theTabulatorReachesItAndSelectsTheWholePath() {
            edit(short).forceActiveFocus(Qt.TabFocusReason);
            compare(short.selectedText, short.text);
            keyClick(Qt.Key_Tab);
            verify(long.selecting);
            compare(long.selectedText, scene.longPath);
            compare(short.selectedText, "");
        }

        function test_theTabulatorPassesAPathInAList() {
            edit(long).forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Tab);
            verify(!listed.selecting);
            verify(last.selecting);
        }

        function test_isCopiedWhole() {
            const field = createTemporaryQmlObject("import QtQuick; TextInput {}", scene);
            mouseClick(long, 20, 5);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            field.paste();
            compare(field.text, scene.longPath);
        }

        function test_cannotBeChanged() {
            mouseClick(short, 20, 5);
            keyClick(Qt.Key_X);
            keyClick(Qt.Key_Delete);
            compare(edit(short).text, short.text);
        }

        function test_isElidedAgainWithoutTheFocus() {
            mouseClick(long, 20, 5);
            scene.forceActiveFocus();
            verify(label(long).visible);
            compare(edit(long).opacity, 0);
            compare(long.selectedText, "");
        }

        function test_tellsAssistiveTechnologyTheWholePath() {
            compare(edit(long).Accessible.name, scene.longPath);
            verify(edit(long).Accessible.readOnly);
            verify(label(long).Accessible.ignored);
        }

        function tip(path) {
            return path.children[4].item;
        }

        function test_theToolTipHoldsTheWholePath() {
            verify(!tip(long));
            mouseMove(long, 20, 5);
            tryVerify(() => tip(long) && tip(long).visible);
            compare(tip(long).words, scene.longPath);
            mouseMove(scene, 490, 290);
            tryVerify(() => !tip(long));
        }

        function test_hasNoToolTipWhereItFits() {
            mouseMove(short, 20, 5);
            wait(50);
            verify(!tip(short));
        }

        function test_showsAnotherPath() {
            const path = createTemporaryQmlObject("import QtQuick; import Loadwick;"
                + "ElidedPath { width: 100; text: '/a' }", scene);
            path.text = "/b";
            compare(label(path).text, "/b");
            compare(edit(path).text, "/b");
        }
    }
}
