import QtQuick
import QtTest
import Loadwick

Item {
    id: scene

    property real place: 0

    NumberAnimation {
        id: animation
        target: scene
        property: "place"
        to: 1
        duration: Springs.meterDuration
        easing: Springs.meter
    }

    TestCase {
        name: "Springs"
        when: windowShown

        function test_moveAnythingToItsPlace() {
            scene.place = 0;
            animation.start();
            tryVerify(() => scene.place > 0 && scene.place < 1);
            tryCompare(animation, "running", false);
            compare(scene.place, 1);
        }
    }
}
