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

        function test_aFirstScanIsAQuietMark() {
            compare(findChild(first, "first").visible, true);
            compare(findChild(first, "first").label, "First scan");
            compare(findChild(first, "change").visible, false);
            compare(first.implicitWidth, findChild(first, "first").implicitWidth);
        }

        function test_growthIsColouredAsAWarningAndShrinkageAsGoodNews() {
            compare(findChild(grew, "change").tint, AppTheme.bandHeavyText);
            compare(findChild(shrank, "change").tint, AppTheme.bandLeanText);
            compare(findChild(unchanged, "change").tint, AppTheme.secondaryText);
        }

        function test_aChangeShowsItsWordsAndItsArrow() {
            compare(findChild(grew, "change").title, "+1,234");
            compare(findChild(grew, "change").symbol, "arrow.up.right");
            compare(findChild(grew, "first").visible, false);
            compare(grew.implicitHeight, findChild(grew, "change").implicitHeight);
        }
    }
}
