import QtQuick
import QtQuick.Templates
import QtTest
import Loadwick

TestCase {
    id: test

    name: "ConfirmationDialog"
    when: windowShown
    width: 700
    height: 500

    Component {
        id: maker

        ConfirmationDialog {
            title: "Delete every recorded scan?"
            message: "This cannot be undone."
            action: "Delete 7 Recorded Scans"
        }
    }

    SignalSpy { id: confirmed; signalName: "confirmed" }

    property ConfirmationDialog dialog

    function init() {
        dialog = createTemporaryObject(maker, test);
        confirmed.clear();
        confirmed.target = dialog;
        dialog.open();
        tryCompare(dialog, "opened", true);
    }

    function test_cancelHasTheFocus() {
        const cancel = findChild(dialog.contentItem, "cancel");
        tryCompare(cancel, "activeFocus", true);
        verify(cancel.visualFocus);
        compare(cancel.title, "Cancel");
    }

    function test_escapeCancels() {
        keyClick(Qt.Key_Escape);
        tryCompare(dialog, "visible", false);
        compare(confirmed.count, 0);
    }

    function test_returnCancels() {
        keyClick(Qt.Key_Return);
        tryCompare(dialog, "visible", false);
        compare(confirmed.count, 0);
    }

    function test_onlyTheActionConfirms() {
        const action = findChild(dialog.contentItem, "action");
        compare(action.title, "Delete 7 Recorded Scans");
        mouseClick(action);
        tryCompare(dialog, "visible", false);
        compare(confirmed.count, 1);
    }

    function test_aClickBesideItDoesNothing() {
        mouseClick(test, 5, 5);
        wait(50);
        verify(dialog.visible);
        compare(confirmed.count, 0);
    }

    function test_theActionLooksDestructive() {
        const action = findChild(dialog.contentItem, "action");
        compare(action.background.color, AppTheme.bandExcessiveText);
        verify(findChild(dialog.contentItem, "cancel").background.color !== AppTheme.bandExcessiveText);
    }

    function test_isModalAndNamed() {
        verify(dialog.modal);
        compare(dialog.title, "Delete every recorded scan?");
    }

    function test_tabStaysInside() {
        const cancel = findChild(dialog.contentItem, "cancel");
        const action = findChild(dialog.contentItem, "action");
        tryCompare(cancel, "activeFocus", true);
        keyClick(Qt.Key_Tab);
        tryCompare(action, "activeFocus", true);
        keyClick(Qt.Key_Tab);
        tryCompare(cancel, "activeFocus", true);
    }
}
