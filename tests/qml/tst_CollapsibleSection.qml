import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 300

    CollapsibleSection {
        id: section
        width: 360
        title: "Session details"

        Rectangle { id: content; implicitWidth: 50; implicitHeight: 60 }
    }

    TestCase {
        name: "CollapsibleSection"
        when: windowShown

        function init() {
            section.isExpanded = false;
        }

        function test_isCollapsedAtFirst() {
            verify(!content.visible);
        }

        function test_opensAndClosesOverItsWholeWidth() {
            mouseClick(section, 355, 16);
            verify(section.isExpanded);
            verify(content.visible);
            mouseClick(section, 2, 16);
            verify(!section.isExpanded);
        }

        function test_opensWithTheKeyboard() {
            section.children[0].forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            verify(section.isExpanded);
            keyClick(Qt.Key_Return);
            verify(!section.isExpanded);
        }

        function test_aReaderHearsTheDetailToo() {
            compare(section.children[0].Accessible.description, "Collapsed");
            section.detail = "A line.";
            compare(section.children[0].Accessible.description, "Collapsed. A line.");
            section.detail = "";
        }

        function test_contentIsSixteenBelowTheHeader() {
            section.isExpanded = true;
            waitForRendering(section);
            const head = section.children[0];
            tryVerify(function () { return content.mapToItem(section, 0, 0).y === head.height + 16; });
            compare(content.mapToItem(section, 0, 0).x, 0);
        }
    }
}
