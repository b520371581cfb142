import QtQuick
import QtTest
import Loadwick

Item {
    id: scene

    property real position: 0

    NumberAnimation {
        id: animation
        target: scene
        property: "position"
        to: 1
        duration: Springs.meterDuration
        easing: Springs.meter
    }

    TestCase {
        name: "Springs"
        when: windowShown

        function test_moveAPropertyToItsTarget() {
            scene.position = 0;
            animation.start();
            tryVerify(() => scene.position > 0 && scene.position < 1);
            tryCompare(animation, "running", false);
            compare(scene.position, 1);
        }
    }
}
