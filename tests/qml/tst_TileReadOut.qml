import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 500
    height: 300

    TileReadOut {
        id: readOut
        width: 200
        path: ""
        figures: ""
        hint: "Hover a tile for its path and share."
    }

    TestCase {
        name: "TileReadOut"
        when: windowShown

        function init() {
            readOut.path = "";
            readOut.figures = "";
        }

        function show(path) {
            readOut.path = path;
            readOut.figures = "12 estimated tokens · 0.1% of total";
        }

        function test_saysWhatToDoWhileNoTileIsInFocus() {
            verify(findChild(readOut, "hint").visible);
            verify(!findChild(readOut, "figures").visible);
        }

        function test_saysWhatTheTileStandsFor() {
            show("/srv/CLAUDE.md");
            verify(!findChild(readOut, "hint").visible);
            verify(findChild(readOut, "figures").visible);
            compare(findChild(readOut, "figures").text, "12 estimated tokens · 0.1% of total");
            verify(!findChild(readOut, "shortPath").visible);
        }

        function test_cutsNoFigureShort() {
            show("/srv/CLAUDE.md");
            readOut.figures = "12,345,678 estimated tokens · 100.0% of total";
            const figures = findChild(readOut, "figures");
            verify(!figures.truncated);
            verify(figures.contentWidth <= readOut.width);
            compare(figures.lineCount, 2);
        }

        function test_leavesOutTheMiddleOfAPathThatNeedsTooManyLines() {
            show("/srv/" + "folder/".repeat(40) + "CLAUDE.md");
            const path = findChild(readOut, "shortPath");
            verify(path.visible);
            compare(path.elide, Text.ElideMiddle);
            compare(path.lineCount, 1);
        }

        function test_isAsHighWhateverItSays() {
            const height = readOut.implicitHeight;
            for (const path of ["/a", "/srv/" + "folder/".repeat(7), "/srv/" + "folder/".repeat(40)]) {
                show(path);
                compare(readOut.implicitHeight, height);
                const figures = findChild(readOut, "figures");
                verify(figures.y + figures.height <= height, path);
            }
        }
    }
}
