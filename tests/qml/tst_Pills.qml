import QtQuick
import QtTest
import Loadwick

Item {
    width: 300
    height: 200

    StatusPill { id: pill; title: "Scanning"; symbol: "arrow.triangle.2.circlepath"; tint: AppTheme.accent }
    ProvenancePill { id: mark; y: 40; label: "<i>First scan</i>" }
    StateIcon { id: icon; y: 80; symbol: "magnifyingglass"; tint: AppTheme.accent }

    TestCase {
        name: "Pills"
        when: windowShown

        function test_aPillIsPaddedByEightAndFour() {
            const line = pill.children[0];
            compare(pill.width, line.width + 16);
            compare(pill.height, line.height + 8);
            compare(pill.radius, pill.height / 2);
        }

        function test_aCapsuleIsThinlyFilledWithItsTint() {
            fuzzyCompare(pill.color.a, 0.12, 0.01);
            fuzzyCompare(icon.color.a, 0.12, 0.01);
        }

        function test_aMarkShowsMarkupLetterByLetter() {
            compare(mark.children[0].textFormat, Text.PlainText);
            compare(mark.width, mark.children[0].width + 16);
        }

        function test_aStateIconIsRoundAndSixtyFourWide() {
            compare(icon.width, 64);
            compare(icon.height, 64);
            compare(icon.radius, 32);
            compare(icon.children[0].width, 28);
        }
    }
}
