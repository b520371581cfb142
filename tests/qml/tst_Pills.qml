import QtQuick
import QtTest
import Loadwick

Item {
    width: 300
    height: 400

    Column {
        StatusPill { id: status; title: "Scanning"; symbol: "arrow.triangle.2.circlepath"; tint: AppTheme.accent }
        StatusPill { id: bare; title: "Illustrative"; symbol: ""; tint: AppTheme.accent; font: AppTheme.captionStrongFont }
        ProvenancePill { id: mark; label: "<i>First scan</i>" }
        TrendPill { id: first; kind: TrendKind.FirstScan; title: "First scan"; symbol: "" }
        TrendPill { id: grew; kind: TrendKind.Grew; title: "+1,234"; symbol: "arrow.up.right" }
        TrendPill { id: shrank; kind: TrendKind.Shrank; title: "-80"; symbol: "arrow.down.right" }
        TrendPill { id: unchanged; kind: TrendKind.Unchanged; title: "±0"; symbol: "equal" }
        StateIcon { id: icon; symbol: "magnifyingglass"; tint: AppTheme.accent }
    }

    TestCase {
        name: "Pills"
        when: windowShown

        function wordsOf(pill) {
            return findChild(pill, "label");
        }

        function test_aPillIsPaddedByEightAndFour() {
            for (const pill of [status, bare, first, grew]) {
                const line = pill.children[0];
                compare(pill.width, line.width + 16);
                compare(pill.height, line.height + 8);
                compare(pill.radius, pill.height / 2);
            }
        }

        function test_aCapsuleIsFilledWithAFaintTint() {
            for (const capsule of [status, grew, icon])
                fuzzyCompare(capsule.color.a, 0.12, 0.01);
        }

        function test_aPillWithoutASymbolIsAsWideAsItsWords() {
            compare(bare.implicitWidth, wordsOf(bare).width + 16);
            compare(status.implicitWidth, wordsOf(status).width + 5 + 14 + 16);
        }

        function test_aMarkShowsMarkupVerbatim() {
            compare(mark.children[0].textFormat, Text.PlainText);
            compare(mark.width, mark.children[0].width + 16);
        }

        function test_aFirstScanIsAQuietMark() {
            compare(wordsOf(first).text, "First scan");
            compare(wordsOf(first).font.weight, Font.Normal);
            compare(wordsOf(first).color, AppTheme.secondaryText);
            compare(first.color, AppTheme.quietFill);
            compare(findChild(first, "symbol").visible, false);
        }

        function test_growthIsColouredAsAWarningAndShrinkageAsSuccess() {
            compare(wordsOf(grew).color, AppTheme.bandHeavyText);
            compare(wordsOf(shrank).color, AppTheme.bandLeanText);
            compare(wordsOf(unchanged).color, AppTheme.secondaryText);
        }

        function test_aChangeShowsItsWordsAndItsArrow() {
            compare(wordsOf(grew).text, "+1,234");
            compare(wordsOf(grew).font.weight, Font.DemiBold);
            compare(findChild(grew, "symbol").name, "arrow.up.right");
            compare(findChild(grew, "symbol").visible, true);
            compare(grew.implicitWidth, wordsOf(grew).width + 5 + 14 + 16);
        }

        function test_aStateIconIsRoundAndSixtyFourWide() {
            compare(icon.width, 64);
            compare(icon.height, 64);
            compare(icon.radius, 32);
            compare(icon.children[0].width, 28);
        }
    }
}
