import QtQuick
import QtTest
import Loadwick

Item {
    width: 200
    height: 100

    TokenBar { id: full; width: 200; length: 1; fill: AppTheme.chartColors[0] }
    TokenBar { id: quarter; y: 20; width: 200; length: 0.25; fill: AppTheme.chartColors[1] }
    TokenBar { id: none; y: 40; width: 200; length: 0; fill: AppTheme.chartColors[2] }
    TokenBar { id: hair; y: 60; width: 200; length: 0.0001; fill: AppTheme.chartColors[2] }
    ScaleEnds { id: ends; y: 80; width: 200; start: "0"; end: "24,902" }

    TestCase {
        name: "TokenBar"
        when: windowShown

        function barOf(track) {
            return findChild(track, "bar");
        }

        function test_aBarFillsItsShareOfTheTrack() {
            compare(barOf(full).width, 200);
            compare(barOf(quarter).width, 50);
            compare(barOf(quarter).x, 0);
        }

        function test_noTokensHaveNoBarAndFewHaveOneThatCanBeSeen() {
            compare(barOf(none).width, 0);
            compare(barOf(hair).width, 2);
        }

        function test_cornersAreFourRound() {
            compare(full.radius, 4);
            compare(barOf(full).radius, 4);
            compare(barOf(full).color, AppTheme.chartColors[0]);
        }

        function test_theScaleSaysWhatItCounts() {
            compare(ends.children[1].text, "tokens");
        }

        function test_theScalesFiguresStandAtItsEnds() {
            compare(ends.children[0].text, "0");
            compare(ends.children[0].x, 0);
            compare(ends.children[2].text, "24,902");
            compare(ends.children[2].x + ends.children[2].width, 200);
            compare(ends.children[2].horizontalAlignment, Text.AlignRight);
        }
    }
}
