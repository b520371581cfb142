import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 200
    height: 200

    Component {
        id: page
        PageAppear { width: 100; height: 100; Rectangle { anchors.fill: parent } }
    }

    TestCase {
        name: "PageAppear"
        when: windowShown

        function cleanup() {
            Appearance.motion = Appearance.DesktopMotion;
        }

        function body(item) {
            return item.children[0];
        }

        function test_fadesInWhileItRises() {
            Appearance.motion = Appearance.Full;
            const item = createTemporaryObject(page, scene);
            verify(item.hasAppeared);
            verify(body(item).opacity < 1);
            verify(body(item).transform[0].y > 0);
            tryCompare(body(item), "opacity", 1);
            tryCompare(body(item).transform[0], "y", 0);
        }

        function test_withReduceMotionAppearsWithoutFading() {
            Appearance.motion = Appearance.Reduced;
            const item = createTemporaryObject(page, scene);
            compare(body(item).opacity, 1);
            compare(body(item).transform[0].y, 0);
        }

        function test_waitsUntilVisible() {
            const item = createTemporaryObject(page, scene, { visible: false });
            verify(!item.hasAppeared);
            item.visible = true;
            verify(item.hasAppeared);
        }

        function test_appearsOnce() {
            Appearance.motion = Appearance.Full;
            const item = createTemporaryObject(page, scene);
            tryCompare(body(item), "opacity", 1);
            item.visible = false;
            item.visible = true;
            compare(body(item).opacity, 1);
        }
    }
}
