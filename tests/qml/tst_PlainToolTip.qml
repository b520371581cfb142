import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 200

    PushButton { id: button; x: 100; y: 100; title: "Scan"; toolTip: "<img src=x> One scan." }

    TestCase {
        name: "PlainToolTip"
        when: windowShown

        function test_showsMarkupLetterByLetter() {
            const tip = createTemporaryQmlObject(
                "import QtQuick; import Loadwick; PlainToolTip { words: '<img src=x>' }", scene);
            compare(tip.text, "");
            compare(tip.contentItem.textFormat, Text.PlainText);
            compare(tip.contentItem.text, "<img src=x>");
        }

        function test_goesByItselfWhereTheKeyboardStays() {
            const tip = createTemporaryQmlObject(
                "import QtQuick; import Loadwick; PlainToolTip { words: 'a'; delay: 0; timeout: 50 }", scene);
            tip.visible = true;
            tryCompare(tip, "opened", true);
            tryCompare(tip, "visible", false);
            const usual = createTemporaryQmlObject(
                "import QtQuick; import Loadwick; PlainToolTip { words: 'a' }", scene);
            compare(usual.timeout, 10000);
        }

        function test_isNeverWiderThanAComfortableLine() {
            const tip = createTemporaryQmlObject("import QtQuick; import Loadwick; PlainToolTip { words: '"
                                                 + "word ".repeat(80) + "' }", scene);
            compare(tip.implicitWidth, 320);
        }
    }
}
