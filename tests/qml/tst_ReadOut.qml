import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 200

    ReadOut {
        id: readOut
        width: 320
        hint: "Point at a slice."
        title: ""
        detail: ""
    }

    TestCase {
        name: "ReadOut"
        when: windowShown

        function init() {
            readOut.title = "";
            readOut.detail = "";
        }

        function test_showsTheHintWhileNothingIsPointedAt() {
            const hint = findChild(readOut, "hint");
            verify(hint.visible);
            compare(hint.text, "Point at a slice.");
            compare(hint.leftPadding, 8);
            compare(hint.topPadding, 4);
            verify(!findChild(readOut, "panel").visible);
        }

        function test_showsWhatIsPointedAtInItsPlace() {
            readOut.title = "Messages";
            readOut.detail = "812 tokens · 2.9%";
            verify(!findChild(readOut, "hint").visible);
            verify(findChild(readOut, "panel").visible);
            compare(findChild(readOut, "title").text, "Messages");
            compare(findChild(readOut, "detail").text, "812 tokens · 2.9%");
        }

        function test_keepsItsSizeWhateverItShows() {
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

        function test_showsNamesAsTheyAre() {
            readOut.title = "<b>Messages</b>";
            compare(findChild(readOut, "title").textFormat, Text.PlainText);
        }
    }
}
