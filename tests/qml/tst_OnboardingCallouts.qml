import QtQuick
import QtTest
import Loadwick
import LoadwickTest

Item {
    id: scene
    width: 400
    height: 300

    SampleOnboarding { id: launch }

    Component {
        id: toolbars
        OnboardingToolbarCallout {}
    }
    Component {
        id: scans
        StateIcon { symbol: "arrow.triangle.2.circlepath"; tint: AppTheme.accent; turning: true }
    }
    Component {
        id: legends
        OnboardingBandLegend { onboarding: launch.presenter }
    }

    TestCase {
        name: "OnboardingCallouts"
        when: windowShown

        function cleanup() {
            Appearance.motion = Appearance.DesktopMotion;
        }

        function make(component, motion) {
            Appearance.motion = motion;
            return createTemporaryObject(component, scene);
        }

        function all(item) {
            return Array.from(item.children).reduce((found, child) => found.concat(all(child)), [item]);
        }

        function rows(legend) {
            return all(legend).filter(item => item.detail !== undefined);
        }

        function test_thePointerBobs() {
            const callout = make(toolbars, Appearance.Full);
            verify(callout.isBobbing);
            tryVerify(() => callout.bob > 0.95);
            tryVerify(() => callout.bob < 0.05);
            tryVerify(() => callout.bob > 0.95);
        }

        function test_withReduceMotionThePointerIsStill() {
            const callout = make(toolbars, Appearance.Reduced);
            verify(!callout.isBobbing);
            wait(300);
            compare(callout.bob, 0);
        }

        function test_thePointerStopsWhenMotionIsTurnedOff() {
            const callout = make(toolbars, Appearance.Full);
            tryVerify(() => callout.bob > 0.1);
            Appearance.motion = Appearance.Reduced;
            compare(callout.bob, 0);
        }

        function test_theSpinnerTurnsOnceASecond() {
            const callout = make(scans, Appearance.Full);
            tryVerify(() => callout.angle > 300);
            tryVerify(() => callout.angle < 60);
        }

        function test_theLegendHasARowPerBandAndItsCaption() {
            const legend = make(legends, Appearance.Reduced);
            compare(rows(legend).map(row => row.title), ["Lean", "Heavy", "Excessive"]);
            compare(rows(legend).map(row => row.detail), ["fine as-is", "worth trimming", "actively hurting the session"]);
            verify(all(legend).some(item => item.text === "These bands are this app's opinion, not an industry standard."));
        }

        function test_theRowsOfTheLegendArriveOneAfterTheOther() {
            const legend = make(legends, Appearance.Full);
            const [lean, heavy, excessive] = rows(legend);
            compare(lean.opacity, 0);
            compare(lean.rise, 8);
            tryVerify(() => lean.opacity > heavy.opacity && heavy.opacity > excessive.opacity && lean.rise < heavy.rise);
            tryVerify(() => [lean, heavy, excessive].every(row => row.opacity === 1 && row.rise === 0));
        }

        function test_withReduceMotionTheRowsFadeInTogetherWithoutRising() {
            const legend = make(legends, Appearance.Reduced);
            const [lean, heavy, excessive] = rows(legend);
            compare(excessive.rise, 0);
            tryVerify(() => lean.opacity > 0 && lean.opacity < 1);
            fuzzyCompare(lean.opacity, excessive.opacity, 0.01);
            tryCompare(excessive, "opacity", 1);
            compare(excessive.rise, 0);
        }
    }
}
