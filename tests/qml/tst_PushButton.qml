import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 200

    PushButton { id: button; x: 20; y: 20; title: "<b>Scan</b>"; symbol: "waveform.path.ecg"; toolTip: "Measure it." }
    PushButton { id: neighbour; x: 20; y: 80; title: "Copy Summary"; prominent: true }

    SignalSpy { id: presses; target: button; signalName: "clicked" }

    TestCase {
        name: "PushButton"
        when: windowShown

        function init() {
            button.enabled = true;
            button.focus = false;
            presses.clear();
        }

        function test_isPressedWithThePointer() {
            mouseClick(button);
            compare(presses.count, 1);
        }

        function test_isPressedWithEachKeyOfAButton_data() {
            return [{ tag: "space", key: Qt.Key_Space }, { tag: "return", key: Qt.Key_Return },
                { tag: "enter", key: Qt.Key_Enter }];
        }

        function test_isPressedWithEachKeyOfAButton(row) {
            button.forceActiveFocus(Qt.TabFocusReason);
            keyClick(row.key);
            compare(presses.count, 1);
        }

        function test_keepsItsWidthForTheLongestOfItsTitles() {
            const before = neighbour.width;
            neighbour.title = "Copy";
            tryVerify(() => neighbour.width < before);
            neighbour.leastTextWidth = 200;
            tryVerify(() => neighbour.width > 200);
            const wide = neighbour.width;
            neighbour.title = "Copy Summary";
            waitForRendering(scene);
            compare(neighbour.width, wide);
            neighbour.leastTextWidth = 0;
            tryCompare(neighbour, "width", before);
        }

        function test_isNotPressedWhileDisabled() {
            button.enabled = false;
            mouseClick(button);
            keyClick(Qt.Key_Return);
            compare(presses.count, 0);
            compare(button.opacity, 0.4);
        }

        function test_itsShortcutPressesItFromAnywhere() {
            button.shortcut = "Ctrl+O";
            keyClick(Qt.Key_O, Qt.ControlModifier);
            compare(presses.count, 1);
            button.enabled = false;
            keyClick(Qt.Key_O, Qt.ControlModifier);
            compare(presses.count, 1);
            button.shortcut = "";
        }

        function test_tabMovesOn() {
            button.forceActiveFocus(Qt.TabFocusReason);
            verify(button.visualFocus);
            keyClick(Qt.Key_Tab);
            verify(neighbour.activeFocus);
        }

        function test_keepsItsWordsOutOfTheControlsText() {
            compare(button.text, "");
            compare(button.title, "<b>Scan</b>");
        }

        function test_hasTheControlHeight() {
            compare(button.height, 32);
        }

        function test_isProminentOnlyWhileEnabled() {
            verify(neighbour.filled);
            neighbour.enabled = false;
            verify(!neighbour.filled);
            neighbour.enabled = true;
        }

        function test_respondsToThePointer() {
            mouseMove(button, 5, 5);
            tryVerify(function () { return button.hovered; });
            mouseMove(scene, 390, 190);
            tryVerify(function () { return !button.hovered; });
        }
    }
}
