import QtQuick
import QtTest
import Loadwick

Item {
    id: scene

    width: 100
    height: 100

    SpinnerIcon { id: icon; name: "arrow.triangle.2.circlepath"; tint: AppTheme.accent }

    Component {
        id: spinners
        SpinnerIcon { name: "arrow.triangle.2.circlepath"; tint: AppTheme.accent; turning: true }
    }

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

        function test_turnsOnceASecond() {
            compare(TurnClock.stepCount * TurnClock.pace.interval, 1000);
        }

        function test_allTurnInTheSameSteps() {
            Appearance.motion = Appearance.Full;
            icon.turning = true;
            const other = createTemporaryObject(spinners, scene);
            tryVerify(function () { return icon.angle > 0; });
            compare(other.angle, icon.angle);
            compare(icon.angle % (360 / TurnClock.stepCount), 0);
        }

        function test_nothingTicksWithoutASpinner() {
            Appearance.motion = Appearance.Full;
            icon.turning = true;
            const other = createTemporaryObject(spinners, scene);
            compare(TurnClock.users, 2);
            other.destroy();
            tryCompare(TurnClock, "users", 1);
            icon.turning = false;
            verify(!TurnClock.pace.running);
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
