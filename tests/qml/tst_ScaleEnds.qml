import QtQuick
import QtTest
import Loadwick

Item {
    width: 200
    height: 100

    ScaleEnds { id: ends; width: 200; start: "0"; end: "24,902" }

    TestCase {
        name: "ScaleEnds"
        when: windowShown

        function test_theScaleNamesItsUnit() {
            compare(ends.children[1].text, "tokens");
            compare(ends.implicitHeight, ends.children[1].height);
        }

        function test_theFiguresAreAtItsEnds() {
            compare(ends.children[0].text, "0");
            compare(ends.children[0].x, 0);
            compare(ends.children[2].text, "24,902");
            compare(ends.children[2].x + ends.children[2].width, 200);
            compare(ends.children[2].horizontalAlignment, Text.AlignRight);
        }

        function test_theUnitIsBetweenThem() {
            const unit = ends.children[1];
            verify(Math.abs(unit.x + unit.width / 2 - 100) <= 0.5);
            verify(ends.children[0].x + ends.children[0].width < unit.x);
        }
    }
}
