import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 200
    height: 100

    Component {
        id: rows
        OnboardingStepDots { currentIndex: 0; stepCount: 4; position: "Step 1 of 4" }
    }

    TestCase {
        name: "OnboardingStepDots"
        when: windowShown

        function cleanup() {
            Appearance.motion = Appearance.DesktopMotion;
        }

        function make(motion) {
            Appearance.motion = motion;
            return createTemporaryObject(rows, scene);
        }

        function dot(row, index) {
            return Array.from(row.children).filter(item => item.isCurrent !== undefined)[index];
        }

        function test_hasOneDotOfSevenBySevenPerStep() {
            const row = make(Appearance.Full);
            for (let index = 0; index < 4; ++index) {
                compare(dot(row, index).width, 7);
                compare(dot(row, index).height, 7);
                compare(findChild(dot(row, index), "disc").color, AppTheme.accent);
            }
            compare(dot(row, 4), undefined);
        }

        function test_theCurrentDotIsFullAndLarger() {
            const row = make(Appearance.Full);
            compare(dot(row, 0).opacity, 1);
            compare(dot(row, 0).sizeFactor, 1.15);
            compare(findChild(dot(row, 0), "disc").width, 7 * 1.15);
            compare(findChild(dot(row, 0), "disc").scale, 1);
            fuzzyCompare(dot(row, 1).opacity, 0.3, 0.001);
            compare(dot(row, 1).sizeFactor, 1);
        }

        function test_aChangeFollowsASpringThatOvershoots() {
            const row = make(Appearance.Full);
            row.currentIndex = 1;
            compare(dot(row, 1).sizeFactor, 1);
            tryVerify(() => dot(row, 1).sizeFactor > 1.151);
            tryCompare(dot(row, 1), "sizeFactor", 1.15);
            compare(dot(row, 0).sizeFactor, 1);
        }

        function test_withReduceMotionNoDotChangesItsSize() {
            const row = make(Appearance.Reduced);
            compare(dot(row, 0).sizeFactor, 1);
            row.currentIndex = 1;
            tryVerify(() => dot(row, 1).opacity > 0.3 && dot(row, 1).opacity < 1);
            tryCompare(dot(row, 1), "opacity", 1);
            compare(dot(row, 1).sizeFactor, 1);
            fuzzyCompare(dot(row, 0).opacity, 0.3, 0.001);
        }

        function test_manyChangesEndAtTheLast() {
            const row = make(Appearance.Full);
            for (const index of [1, 2, 1, 2, 3])
                row.currentIndex = index;
            tryVerify(() => dot(row, 3).sizeFactor === 1.15 && dot(row, 3).emphasis === 1);
            for (const index of [0, 1, 2])
                tryCompare(dot(row, index), "emphasis", 0);
        }

        function test_saysWhichStepIsCurrent() {
            compare(make(Appearance.Full).Accessible.name, "Step 1 of 4");
        }
    }
}
