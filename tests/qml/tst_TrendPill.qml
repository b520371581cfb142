import QtQuick
import QtTest
import Loadwick

Item {
    width: 300
    height: 300

    Column {
        TrendPill { id: first; kind: TrendKind.FirstScan; title: "First scan"; symbol: "" }
        TrendPill { id: grew; kind: TrendKind.Grew; title: "+1,234"; symbol: "arrow.up.right" }
        TrendPill { id: shrank; kind: TrendKind.Shrank; title: "-80"; symbol: "arrow.down.right" }
        TrendPill { id: unchanged; kind: TrendKind.Unchanged; title: "±0"; symbol: "equal" }
    }

    TestCase {
        name: "TrendPill"
        when: windowShown

        function wordsOf(pill) {
            return findChild(pill, "label");
        }

        function test_aFirstScanIsAQuietMark() {
            compare(wordsOf(first).text, "First scan");
            compare(wordsOf(first).font.weight, Font.Normal);
            compare(wordsOf(first).color, AppTheme.secondaryText);
            compare(first.color, AppTheme.quietFill);
            compare(findChild(first, "symbol").visible, false);
            compare(first.implicitWidth, wordsOf(first).width + 16);
            compare(first.implicitHeight, wordsOf(first).height + 8);
        }

        function test_growthIsColouredAsAWarningAndShrinkageAsGoodNews() {
            compare(wordsOf(grew).color, AppTheme.bandHeavyText);
            compare(wordsOf(shrank).color, AppTheme.bandLeanText);
            compare(wordsOf(unchanged).color, AppTheme.secondaryText);
            fuzzyCompare(grew.color.a, 0.12, 0.01);
        }

        function test_aChangeShowsItsWordsAndItsArrow() {
            compare(wordsOf(grew).text, "+1,234");
            compare(wordsOf(grew).font.weight, Font.DemiBold);
            compare(findChild(grew, "symbol").name, "arrow.up.right");
            compare(findChild(grew, "symbol").visible, true);
            compare(grew.implicitWidth, wordsOf(grew).width + 5 + 14 + 16);
        }
    }
}
