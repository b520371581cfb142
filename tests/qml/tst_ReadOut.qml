import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 300

    ReadOut {
        id: readOut
        width: 320
        hint: "Point at a slice."
        title: ""
        detail: ""
    }

    ReadOut {
        id: path
        y: 100
        width: 200
        hint: "Hover a tile for its path and share."
        title: ""
        detail: ""
        isPath: true
        titleLines: 2
        detailLines: 3
        atTop: true
    }

    TestCase {
        name: "ReadOut"
        when: windowShown

        function init() {
            readOut.title = "";
            readOut.detail = "";
            showPath("");
        }

        function showPath(words) {
            path.title = words;
            path.detail = words ? "12,345,678 estimated tokens · 100.0% of total" : "";
        }

        function test_showsTheHintWithoutACurrentMark() {
            const hint = findChild(readOut, "hint");
            verify(hint.visible);
            compare(hint.text, "Point at a slice.");
            compare(hint.leftPadding, 8);
            compare(hint.topPadding, 4);
            verify(!findChild(readOut, "panel").visible);
        }

        function test_showsTheCurrentMarkInsteadOfTheHint() {
            readOut.title = "Messages";
            readOut.detail = "812 tokens · 2.9%";
            verify(!findChild(readOut, "hint").visible);
            verify(findChild(readOut, "panel").visible);
            compare(findChild(readOut, "title").text, "Messages");
            compare(findChild(readOut, "detail").text, "812 tokens · 2.9%");
        }

        function test_keepsItsSizeForAnyContent() {
            const height = readOut.implicitHeight;
            readOut.title = "A name that is so long that it takes more than one line. ".repeat(9);
            readOut.detail = "812 tokens · 2.9%";
            waitForRendering(scene);
            compare(readOut.implicitHeight, height);
            const panel = findChild(readOut, "panel");
            verify(panel.height <= height);
            verify(panel.width <= 320);
            compare(findChild(readOut, "title").lineCount, 3);
        }

        function test_showsNamesVerbatim() {
            readOut.title = "<b>Messages</b>";
            compare(findChild(readOut, "title").textFormat, Text.PlainText);
        }

        function test_topAlignsTheWordsOnAPath() {
            compare(findChild(path, "hint").y, 0);
            showPath("/srv/CLAUDE.md");
            compare(findChild(path, "panel").y, 0);
        }

        function test_aPathIsWrappedAnywhere() {
            showPath("/srv/" + "folder".repeat(6));
            const title = findChild(path, "title");
            verify(title.visible);
            compare(title.lineCount, 2);
            verify(!findChild(path, "shortPath").visible);
        }

        function test_elidesNoFigure() {
            showPath("/srv/CLAUDE.md");
            const figures = findChild(path, "detail");
            verify(!figures.truncated);
            verify(figures.contentWidth <= figures.width);
        }

        function test_elidesALongPathInTheMiddle() {
            showPath("/srv/" + "folder/".repeat(40) + "CLAUDE.md");
            const cut = findChild(path, "shortPath");
            verify(cut.visible);
            compare(cut.elide, Text.ElideMiddle);
            compare(cut.lineCount, 1);
            verify(!findChild(path, "title").visible);
        }

        function test_aNoteIsBelowTheDetail() {
            const note = findChild(path, "note");
            verify(!note.visible);
            const height = path.implicitHeight;
            path.noteLines = 2;
            verify(path.implicitHeight > height);
            showPath("/srv/CLAUDE.md");
            path.note = "imported by " + "docs/".repeat(40) + "style.md";
            verify(note.visible);
            compare(note.lineCount, 2);
            const detail = findChild(path, "detail");
            tryVerify(() => note.y >= detail.y + detail.height); // positioned before the next frame
            path.note = "";
            path.noteLines = 0;
        }

        function test_keepsItsHeightForAnyPath() {
            const height = path.implicitHeight;
            for (const words of ["/a", "/srv/" + "folder/".repeat(5), "/srv/" + "folder/".repeat(40)]) {
                showPath(words);
                waitForRendering(scene);
                compare(path.implicitHeight, height);
                const panel = findChild(path, "panel");
                verify(panel.y + panel.height <= height, words);
                verify(panel.width <= path.width);
            }
        }
    }
}
