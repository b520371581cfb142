import QtQuick
import QtTest
import Loadwick
import LoadwickTest

Item {
    id: scene
    width: 800
    height: 400

    SampleBand { id: sample; total: 45000 }

    Component {
        id: cards
        HealthScoreCard { width: 800; band: sample.presenter }
    }

    TestCase {
        name: "HealthScoreCard"
        when: windowShown

        function init() {
            Appearance.motion = Appearance.Reduced;
            sample.total = 45000;
        }

        function cleanup() {
            Appearance.motion = Appearance.DesktopMotion;
        }

        function arc(card) {
            return findChild(card, "arc");
        }

        // All visible texts of the item, front to back.
        function words(item) {
            const own = item.text !== undefined && item.visible && item.text.length > 0 ? [item.text] : [];
            return Array.from(item.children).reduce((all, child) => all.concat(words(child)), own);
        }

        function test_withReduceMotionShowsTheScoreAtOnce() {
            const card = createTemporaryObject(cards, scene);
            compare(card.animatedScore, 50);
            compare(arc(card).value, 50);
        }

        function test_sweepsUpFromEmpty() {
            Appearance.motion = Appearance.Full;
            const card = createTemporaryObject(cards, scene);
            compare(card.animatedScore, 0);
            tryVerify(() => card.animatedScore > 0 && card.animatedScore < 50);
            tryCompare(card, "animatedScore", 50);
        }

        function test_sweepsAgainWithEveryReport() {
            Appearance.motion = Appearance.Full;
            const card = createTemporaryObject(cards, scene);
            tryCompare(card, "animatedScore", 50);
            sample.total = 45000;
            compare(card.animatedScore, 0);
            tryCompare(card, "animatedScore", 50);
        }

        function test_aTotalOfZeroScoresOneHundred() {
            sample.total = 0;
            compare(createTemporaryObject(cards, scene).animatedScore, 100);
        }

        function test_aReportBeforeTheCardIsVisibleSweepsOnce() {
            Appearance.motion = Appearance.Full;
            const card = createTemporaryObject(cards, scene, { visible: false });
            sample.total = 0;
            compare(card.animatedScore, 0);
            card.visible = true;
            tryCompare(card, "animatedScore", 100);
        }

        function test_isTintedByTheBand() {
            const card = createTemporaryObject(cards, scene);
            compare(arc(card).tint, AppTheme.bandHeavy);
            sample.total = 142318;
            compare(arc(card).tint, AppTheme.bandExcessive);
        }

        function test_theGaugeIsOneGraphicThatSaysItIsIllustrative() {
            const gauge = arc(createTemporaryObject(cards, scene)).parent;
            compare(gauge.width, 100);
            compare(gauge.height, 100);
            compare(gauge.Accessible.role, Accessible.Graphic);
            compare(gauge.Accessible.name, "Illustrative score 50 of 100");
        }

        function test_saysWhatTheScoreIsAndIsNot() {
            const all = words(createTemporaryObject(cards, scene));
            for (const text of ["50", "Score", "Context headroom",
                                "50 of 100 — how much of the 90,000-token band scale is still free.",
                                "Illustrative score — not a measurement",
                                "Derived from the Heavy band position of the Claude-reported total. These bands are this app's opinion, not an industry standard."])
                verify(all.includes(text), text);
        }

        function test_stacksTheTextBelowTheGaugeIfTheyDoNotFit() {
            const wide = createTemporaryObject(cards, scene);
            const narrow = createTemporaryObject(cards, scene, { width: 360 });
            tryVerify(() => narrow.implicitHeight > wide.implicitHeight + 80);
        }
    }
}
