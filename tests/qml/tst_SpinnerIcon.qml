import QtQuick
import QtTest
import Loadwick

Item {
    width: 100
    height: 100

    SpinnerIcon { id: icon; name: "arrow.triangle.2.circlepath"; tint: AppTheme.accent }

    TestCase {
        name: "SpinnerIcon"
        when: windowShown

        function cleanup() {
            icon.turning = false;
            Appearance.motion = Appearance.DesktopMotion;
        }

        function test_turnsOnlyWhenAsked() {
            Appearance.motion = Appearance.Full;
            verify(!icon.moving);
            icon.turning = true;
            tryVerify(function () { return icon.angle > 0; });
        }

        function test_isUprightWhenItStops() {
            Appearance.motion = Appearance.Full;
            icon.turning = true;
            tryVerify(function () { return icon.angle > 0; });
            icon.turning = false;
            compare(icon.angle, 0);
        }

        function test_isStillWithReduceMotion() {
            Appearance.motion = Appearance.Reduced;
            icon.turning = true;
            verify(!icon.moving);
            compare(icon.angle, 0);
        }

        function test_isStillWhileHidden() {
            Appearance.motion = Appearance.Full;
            icon.turning = true;
            icon.visible = false;
            verify(!icon.moving);
            icon.visible = true;
        }
    }
}
