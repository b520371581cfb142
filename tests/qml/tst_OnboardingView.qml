import QtQuick
import QtTest
import Loadwick
import LoadwickTest

Item {
    id: scene
    width: 960
    height: 640

    Component {
        id: launches
        SampleOnboarding {}
    }
    Component {
        id: sheets
        OnboardingView {}
    }
    SignalSpy {
        id: presented
        signalName: "isPresentedChanged"
    }

    TestCase {
        id: test

        property SampleOnboarding launch
        property OnboardingView sheet

        name: "OnboardingView"
        when: windowShown

        function init() {
            Appearance.motion = Appearance.Full;
            test.launch = createTemporaryObject(launches, scene);
            tryCompare(test.launch.presenter, "isPresented", true);
            presented.target = test.launch.presenter;
            presented.clear();
            test.sheet = sheets.createObject(scene, { onboarding: test.launch.presenter });
            tryCompare(test.sheet, "opened", true);
            tryCompare(test.sheet, "opacity", 1);
        }

        function cleanup() {
            test.sheet.destroy();
            wait(0);
            Appearance.motion = Appearance.DesktopMotion;
        }

        function all(item) {
            return Array.from(item.children).reduce((found, child) => found.concat(all(child)), [item]);
        }

        function button(title) {
            return all(test.sheet.contentItem).find(item => item.title === title && item.visible);
        }

        function words(text) {
            return all(test.sheet.contentItem).find(item => item.text === text && item.visible);
        }

        function press(title) {
            mouseClick(button(title));
        }

        function step(index) {
            return all(test.sheet.contentItem).find(item => item.step === test.launch.presenter.step(index));
        }

        function test_showsTheButtonsOfEachStep() {
            const expected = [["Skip", "Next"], ["Skip", "Back", "Next"], ["Skip", "Back", "Next"], ["Back", "Got it"]];
            for (let index = 0; index < 4; ++index) {
                for (const title of ["Skip", "Back", "Next", "Got it"])
                    compare(button(title) !== undefined, expected[index].includes(title), index + " " + title);
                keyClick(Qt.Key_Return);
            }
        }

        function test_onlyThePrimaryButtonIsProminent() {
            press("Next");
            verify(button("Next").prominent);
            verify(!button("Back").prominent);
            verify(!button("Skip").prominent);
        }

        function test_showsTheWordsOfEachStep() {
            for (let index = 0; index < 4; ++index) {
                const texts = test.launch.presenter.step(index);
                for (const text of [texts.title, texts.body, texts.footnote])
                    if (text.length > 0)
                        tryVerify(() => words(text) !== undefined && step(index).opacity === 1);
                keyClick(Qt.Key_Return);
            }
        }

        function test_isNamedAfterItsStep() {
            compare(test.sheet.title, "See what Claude Code loads before it reads a single message");
            press("Next");
            compare(test.sheet.title, "Point it at a local git repository");
        }

        function test_backReturnsToThePreviousStep() {
            press("Next");
            press("Next");
            press("Back");
            compare(test.launch.presenter.currentIndex, 1);
            tryCompare(step(2), "visible", false);
        }

        function test_aStepComesFromTheSideOfItsMove() {
            const width = AppTheme.stepSlide;
            compare(step(1).x, width);
            press("Next");
            tryVerify(() => step(1).x > 0 && step(1).x < width && step(0).x < 0 && step(0).x > -width);
            tryVerify(() => step(1).x === 0 && step(0).x === -width);
            compare(step(0).visible, false);
            press("Back");
            tryVerify(() => step(0).x < 0 && step(0).x > -width && step(1).x > 0 && step(1).x < width);
            tryVerify(() => step(0).x === 0 && step(1).x === width);
        }

        function test_withReduceMotionTheStepsOnlyFade() {
            Appearance.motion = Appearance.Reduced;
            compare(AppTheme.stepDuration, 120);
            press("Next");
            tryVerify(() => step(1).opacity > 0 && step(1).opacity < 1 && step(0).opacity > 0);
            for (const index of [0, 1, 2, 3])
                compare(step(index).x, 0);
            tryCompare(step(1), "opacity", 1);
            compare(step(0).visible, false);
        }

        function test_skipStoresTheCompletionAndCloses() {
            press("Skip");
            compare(test.launch.writes(), 1);
            tryCompare(test.launch.presenter, "isPresented", false);
            verify(!test.sheet.visible);
        }

        function test_pressingReturnOnTheLastStepStoresTheCompletionAndClosesAfterTheAnimation() {
            for (let press = 0; press < 4; ++press)
                keyClick(Qt.Key_Return);
            compare(test.launch.writes(), 1);
            verify(test.sheet.isDismissing);
            verify(test.launch.presenter.isPresented);
            tryVerify(() => test.sheet.opacity > 0 && test.sheet.opacity < 1);
            verify(test.sheet.visible);
            tryCompare(test.launch.presenter, "isPresented", false);
        }

        function test_tappingThePrimaryButtonTwiceOnTheLastStepClosesOnce() {
            for (let press = 0; press < 3; ++press)
                keyClick(Qt.Key_Return);
            const gotIt = button("Got it");
            mouseClick(gotIt);
            mouseClick(gotIt);
            tryCompare(presented, "count", 1);
            wait(2 * AppTheme.sheetCloseDuration);
            compare(presented.count, 1);
            compare(test.launch.writes(), 1);
        }

        function test_closingTakesLessTimeWithReduceMotion() {
            compare(AppTheme.sheetCloseDuration, 160);
            Appearance.motion = Appearance.Reduced;
            compare(AppTheme.sheetCloseDuration, 100);
            press("Skip");
            tryCompare(test.launch.presenter, "isPresented", false);
        }

        function test_returnPressesThePrimaryButtonAfterTheMouseWentBack() {
            press("Next");
            press("Back");
            keyClick(Qt.Key_Return);
            compare(test.launch.presenter.currentIndex, 1);
        }

        function test_theFocusedButtonRespondsToTheKeyboard() {
            press("Next");
            keyClick(Qt.Key_Tab);
            verify(button("Skip").visualFocus);
            keyClick(Qt.Key_Tab);
            verify(button("Back").visualFocus);
            keyClick(Qt.Key_Space);
            compare(test.launch.presenter.currentIndex, 0);
            tryCompare(button("Next"), "activeFocus", true);
        }

        function test_theButtonsDoNotMove() {
            wait(50);
            const position = button("Next").mapToItem(scene, 0, 0);
            compare(position.y, Math.round(position.y));
            for (let index = 1; index < 4; ++index) {
                keyClick(Qt.Key_Return);
                wait(50);
                const primary = button("Next") ?? button("Got it");
                compare(primary.mapToItem(scene, primary.width, 0).y, position.y);
            }
        }

        function test_nothingIsClipped() {
            for (let index = 0; index < 4; ++index) {
                tryCompare(step(index), "opacity", 1);
                verify(step(index).implicitHeight <= step(index).parent.height);
                for (const item of all(step(index)))
                    verify(!(item.truncated ?? false), item.text);
                keyClick(Qt.Key_Return);
            }
            verify(test.sheet.height <= scene.height - 2 * AppTheme.pageMargin, test.sheet.height);
        }
    }
}
