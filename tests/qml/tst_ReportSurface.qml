import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 300

    ReportSurface {
        id: card
        x: 40
        y: 40
        width: 200

        Rectangle { id: content; implicitWidth: 50; implicitHeight: 60 }
    }

    ReportSurface {
        id: charted
        x: 40
        y: 160

        DonutChart { id: chart; implicitWidth: 100; implicitHeight: 100; tokens: [1, 2] }
    }

    TestCase {
        name: "ReportSurface"
        when: windowShown

        function init() {
            mouseMove(scene, 390, 290);
            tryVerify(function () { return !card.isHovering; });
            tryVerify(shadowRests);
        }

        // No shadow exists before a pointer enters.
        function shadowRests() {
            const shadow = findChild(card, "shadow");
            return shadow === null || !shadow.visible;
        }

        function cleanup() {
            Appearance.motion = Appearance.DesktopMotion;
        }

        function test_padsItsContentBySixteen() {
            const position = content.mapToItem(card, 0, 0);
            compare(position.x, 16);
            compare(position.y, 16);
            compare(card.implicitHeight, 60 + 32);
        }

        function test_hasAFaintBorderAndNoShadowAtRest() {
            Appearance.motion = Appearance.Reduced;
            tryCompare(findChild(card, "border"), "opacity", 0.6);
            compare(findChild(card, "border").radius, 14);
            tryVerify(shadowRests);
        }

        function test_hasNoShadowBeforeAPointerEnters() {
            compare(findChild(charted, "shadow"), null);
        }

        function test_animatesBorderAndShadowWhenHovered() {
            Appearance.motion = Appearance.Full;
            mouseMove(card, 20, 20);
            tryVerify(function () { return card.isHovering; });
            verify(findChild(card, "border").opacity < 1);
            tryCompare(findChild(card, "border"), "opacity", 1);
            tryCompare(findChild(card, "shadow"), "opacity", 0.16);
        }

        function test_isHoveredOverAChartToo() {
            mouseMove(charted, 4, 4);
            tryVerify(function () { return charted.isHovering; });
            mouseMove(chart, 50, 5);
            tryVerify(function () { return chart.currentMark >= 0; });
            verify(charted.isHovering);
            mouseMove(chart, 52, 7);
            verify(charted.isHovering);
            mouseMove(scene, 390, 290);
            tryCompare(chart, "currentMark", -1);
            verify(!charted.isHovering);
        }

        function test_withReduceMotionHoveringChangesBorderAndShadowAtOnce() {
            Appearance.motion = Appearance.Reduced;
            mouseMove(card, 20, 20);
            tryVerify(function () { return card.isHovering; });
            compare(findChild(card, "border").opacity, 1);
            compare(findChild(card, "shadow").opacity, 0.16);
        }

        function test_theShadowLiesAThirdOfItsRadiusLower() {
            mouseMove(card, 20, 20);
            const shadow = findChild(card, "shadow");
            const middle = shadow.mapToItem(card, 0, shadow.height / 2).y;
            fuzzyCompare(middle - card.height / 2, 16 / 3, 0.01);
            compare(shadow.status, BorderImage.Ready);
        }
    }
}
