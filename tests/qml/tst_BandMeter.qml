import QtQuick
import QtTest
import Loadwick
import LoadwickTest

Item {
    id: scene
    width: 800
    height: 100

    SampleBand { id: sample; total: 45000 }

    Component {
        id: meters
        BandMeter { width: 800; band: sample.presenter }
    }

    TestCase {
        name: "BandMeter"
        when: windowShown

        function init() {
            Appearance.motion = Appearance.Reduced;
            sample.total = 45000;
        }

        function cleanup() {
            Appearance.motion = Appearance.DesktopMotion;
            Appearance.scheme = Appearance.DesktopScheme;
        }

        function marker(meter) {
            return findChild(meter, "marker");
        }

        function shownLabels(meter) {
            const labels = findChild(meter, "labels");
            return [0, 1, 2].map(i => labels.children[i]).filter(label => label.visible).map(label => label.text);
        }

        function test_theBarIsSixteenHighAndAsWideAsTheMeter() {
            const bar = findChild(createTemporaryObject(meters, scene), "bar");
            compare(bar.width, 800);
            compare(bar.height, 16);
        }

        function test_theMarkerIsACircleOfTwelveInTheMiddleOfTheBar() {
            const meter = createTemporaryObject(meters, scene);
            compare(marker(meter).width, 12);
            compare(marker(meter).height, 12);
            compare(marker(meter).radius, 6);
            compare(marker(meter).y, 2);
            compare(marker(meter).color, AppTheme.text);
        }

        function test_theKeyboardReachesItsWords() {
            const meter = createTemporaryObject(meters, scene);
            keyClick(Qt.Key_Tab);
            verify(meter.activeFocus);
            compare(meter.Accessible.name, sample.presenter.meterSummary);
            verify(meter.Accessible.focusable);
        }

        function test_withReduceMotionTheMarkerDoesNotSlide() {
            const meter = createTemporaryObject(meters, scene);
            compare(meter.markerProgress, 0.5);
            compare(marker(meter).x, 394);
        }

        function test_theMarkerSlidesIntoPlace() {
            Appearance.motion = Appearance.Full;
            const meter = createTemporaryObject(meters, scene);
            compare(marker(meter).x, 0);
            tryVerify(() => marker(meter).x > 0 && marker(meter).x < 390);
            tryCompare(meter, "markerProgress", 0.5);
        }

        function test_aNewTotalSlidesInAgain() {
            Appearance.motion = Appearance.Full;
            const meter = createTemporaryObject(meters, scene);
            tryCompare(meter, "markerProgress", 0.5);
            sample.total = 67500;
            compare(meter.markerProgress, 0);
            tryCompare(meter, "markerProgress", 0.75);
        }

        function test_theSameTotalStaysWhereItIs() {
            Appearance.motion = Appearance.Full;
            const meter = createTemporaryObject(meters, scene);
            tryCompare(meter, "markerProgress", 0.5);
            sample.total = 45000;
            compare(meter.markerProgress, 0.5);
        }

        function test_turningMotionOffEndsItAtOnce() {
            Appearance.motion = Appearance.Full;
            const meter = createTemporaryObject(meters, scene);
            Appearance.motion = Appearance.Reduced;
            compare(meter.markerProgress, 0.5);
        }

        function test_aTotalOfZeroIsAtTheFarLeft() {
            sample.total = 0;
            compare(marker(createTemporaryObject(meters, scene)).x, 0);
        }

        function test_theLargestTotalStaysOnTheBar() {
            sample.total = 9000000000000000000;
            compare(marker(createTemporaryObject(meters, scene)).x, 788);
        }

        function test_namesItsSegments() {
            compare(shownLabels(createTemporaryObject(meters, scene)), ["Lean", "Heavy", "Excessive"]);
        }

        function test_hidesTheLabelOfANarrowSegment() {
            sample.total = 9000000;
            compare(shownLabels(createTemporaryObject(meters, scene)), ["Lean", "Excessive"]);
        }

        function test_isOneGraphicThatSaysWhatItShows() {
            const meter = createTemporaryObject(meters, scene);
            compare(meter.Accessible.role, Accessible.Graphic);
            compare(meter.Accessible.name, "Band meter from 0 to 90,000 tokens: 45,000 tokens are Heavy. Lean under 30,000, Heavy 30,000–60,000, Excessive over 60,000.");
        }

        function test_theMarkerStandsOutFromItsRing_data() {
            return [{ tag: "light", scheme: Appearance.Light }, { tag: "dark", scheme: Appearance.Dark }];
        }

        function test_theMarkerStandsOutFromItsRing(data) {
            Appearance.scheme = data.scheme;
            const meter = createTemporaryObject(meters, scene);
            const ring = findChild(meter, "ring");
            compare(ring.width, 16);
            compare(ring.x, marker(meter).x - 2);
            compare(ring.color, AppTheme.surface);
            verify(Math.abs(ring.color.hslLightness - marker(meter).color.hslLightness) > 0.7);
        }
    }
}
