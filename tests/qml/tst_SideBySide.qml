import QtQuick
import QtQuick.Layouts
import QtTest
import Loadwick

TestCase {
    id: test
    name: "SideBySide"
    when: windowShown
    width: 600
    height: 200
    visible: true

    Component {
        id: pair

        SideBySide {
            id: layout

            readonly property Item first: one
            readonly property Item second: two

            columnSpacing: 20

            Rectangle { id: one; implicitWidth: 100; implicitHeight: 10 }
            Rectangle {
                id: two
                implicitWidth: 500
                implicitHeight: 10
                Layout.minimumWidth: 80
                Layout.fillWidth: true
            }
        }
    }

    Component {
        id: repeated

        SideBySide {
            columnSpacing: 20

            Repeater {
                model: 3
                Rectangle { implicitWidth: 100; implicitHeight: 10 }
            }
        }
    }

    function test_isSideBySideIfBothFit() {
        const layout = createTemporaryObject(pair, test, { width: 200 }) as SideBySide;
        verify(waitForRendering(layout));
        verify(!layout.stacked);
        compare(layout.first.y, layout.second.y);
        compare(layout.second.x, 120);
    }

    function test_stacksIfTheyDoNotFit() {
        const layout = createTemporaryObject(pair, test, { width: 199 }) as SideBySide;
        verify(waitForRendering(layout));
        verify(layout.stacked);
        compare(layout.first.x, layout.second.x);
        verify(layout.second.y > layout.first.y);
    }

    function test_changesWithTheWidth() {
        const layout = createTemporaryObject(pair, test, { width: 199 }) as SideBySide;
        layout.width = 400;
        verify(!layout.stacked);
        layout.width = 150;
        verify(layout.stacked);
    }

    function test_aHiddenChildNeedsNoRoom() {
        const layout = createTemporaryObject(pair, test, { width: 100 }) as SideBySide;
        layout.second.visible = false;
        verify(!layout.stacked);
    }

    function test_countsRepeatedItems() {
        const layout = createTemporaryObject(repeated, test, { width: 340 }) as SideBySide;
        verify(!layout.stacked);
        compare(layout.columns, 3);
        layout.width = 339;
        verify(layout.stacked);
    }
}
