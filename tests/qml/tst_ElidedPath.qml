import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 500
    height: 300

    readonly property string longPath: "/home/somebody/" + "folder/".repeat(20) + "CLAUDE.md"

    ElidedPath { id: brief; width: 400; text: "/srv/<b>app</b>/CLAUDE.md" }
    ElidedPath { id: deep; y: 40; width: 200; text: scene.longPath }
    ElidedPath { id: listed; y: 80; width: 200; text: scene.longPath; tabStop: false }
    ElidedPath { id: last; y: 120; width: 200; text: "/last" }

    ElidedPath { id: broken; y: 240; width: 200; text: "/srv/line\nfeed\u2028" + scene.longPath }
    ElidedPath { id: hebrew; y: 160; width: 400; text: "/\u05D0\u05D1/\u05D2\u05D3/app" }
    // Measures the position of each letter of a text.
    TextInput { id: ruler; y: 200; width: 400 }

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

        function test_elidesALongPathInTheMiddle() {
            verify(deep.truncated);
            compare(label(deep).elide, Text.ElideMiddle);
            compare(label(deep).lineCount, 1);
            verify(!brief.truncated);
        }

        function test_aLineBreakInAPathIsASpace() {
            compare(label(broken).lineCount, 1);
            verify(label(broken).contentWidth <= broken.width);
            verify(broken.shownText.startsWith("\u200E/\u200Esrv/\u200Eline feed /"));
            compare(edit(broken).text, broken.text);
        }

        function test_showsMarkupVerbatim() {
            compare(label(brief).textFormat, Text.PlainText);
            compare(edit(brief).displayText, "/srv/<b>app</b>/CLAUDE.md");
        }

        function positionOf(words) {
            return ruler.positionToRectangle(ruler.text.indexOf(words)).x;
        }

        function test_foldersReadFromLeftToRightInEveryScript() {
            ruler.text = hebrew.text;
            verify(positionOf("\u05D0") > positionOf("\u05D2")); // as it would be on its own
            ruler.text = label(hebrew).text;
            verify(positionOf("\u05D0") < positionOf("\u05D2"));
            verify(positionOf("\u05D2") < positionOf("app"));
            compare(edit(hebrew).text, hebrew.text); // what is copied is the path and nothing else
        }

        function test_aPressSelectsTheWholePath() {
            mouseClick(deep, 20, 5);
            verify(deep.selecting);
            compare(deep.selectedText, scene.longPath);
            verify(!label(deep).visible);
        }

        function test_theSecondPressSelectsAPart() {
            mouseClick(brief, 20, 5);
            mouseDoubleClickSequence(edit(brief), 20, 5);
            verify(brief.selectedText.length > 0);
            verify(brief.selectedText.length < brief.text.length);
        }

        function test_tabReachesItAndSelectsTheWholePath() {
            edit(brief).forceActiveFocus(Qt.TabFocusReason);
            compare(brief.selectedText, brief.text);
            keyClick(Qt.Key_Tab);
            verify(deep.selecting);
            compare(deep.selectedText, scene.longPath);
            compare(brief.selectedText, "");
        }

        function test_tabSkipsAPathInAList() {
            edit(deep).forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Tab);
            verify(!listed.selecting);
            verify(last.selecting);
        }

        function test_isCopiedWhole() {
            const field = createTemporaryQmlObject("import QtQuick; TextInput {}", scene);
            mouseClick(deep, 20, 5);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            field.paste();
            compare(field.text, scene.longPath);
        }

        function test_cannotBeChanged() {
            mouseClick(brief, 20, 5);
            keyClick(Qt.Key_X);
            keyClick(Qt.Key_Delete);
            compare(edit(brief).text, brief.text);
        }

        function test_isElidedAgainWithoutTheFocus() {
            mouseClick(deep, 20, 5);
            scene.forceActiveFocus();
            verify(label(deep).visible);
            compare(edit(deep).opacity, 0);
            compare(deep.selectedText, "");
        }

        function test_tellsAssistiveTechnologyTheWholePath() {
            compare(edit(deep).Accessible.name, scene.longPath);
            verify(edit(deep).Accessible.readOnly);
            verify(label(deep).Accessible.ignored);
        }

        function tip(path) {
            return findChild(path, "tip").shown;
        }

        function test_theToolTipHoldsTheWholePath() {
            verify(!tip(deep));
            mouseMove(deep, 20, 5);
            tryVerify(() => tip(deep) && tip(deep).visible);
            compare(tip(deep).words, deep.shownText);
            mouseMove(scene, 490, 290);
            tryVerify(() => !tip(deep));
        }

        function test_hasNoToolTipIfItFits() {
            mouseMove(brief, 20, 5);
            wait(50);
            verify(!tip(brief));
        }

        function test_showsAnotherPath() {
            const path = createTemporaryQmlObject("import QtQuick; import Loadwick;"
                + "ElidedPath { width: 100; text: '/a' }", scene);
            path.text = "/b";
            compare(label(path).text, path.shownText);
            compare(edit(path).text, "/b");
        }
    }
}
