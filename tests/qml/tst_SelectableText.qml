import QtQuick
import QtTest
import Loadwick

Item {
    id: scene
    width: 400
    height: 300

    SelectableText { id: plain; width: 200; text: "<b>a</b> path" }
    SelectableText { id: path; y: 60; width: 120; text: "/home/somebody/" + "folder/".repeat(20); maximumLineCount: 2 }

    SelectableText { id: twoFolders; y: 120; width: 150; text: "/home/somebody/Projects/harbor"; maximumLineCount: 2 }

    SelectableText { id: untouched; x: 220; y: 120; width: 150; text: "Fits"; maximumLineCount: 1 }
    SelectableText { id: focused; x: 220; y: 210; width: 150; text: "Fits as well"; maximumLineCount: 1 }
    Component { id: line; SelectableText { x: 220; y: 180; width: 150; text: "Fits too"; maximumLineCount: 1 } }
    SelectableText { id: several; x: 220; y: 10; width: 150; text: "Several words that stand on several lines of one text" }

    FocusScope {
        x: 10
        y: 240

        SelectableText { id: firstOfTwo; width: 150; text: "The stop"; KeyNavigation.down: secondOfTwo }
        SelectableText { id: secondOfTwo; y: 24; width: 150; text: "Beside it"; tabStop: false }
        SelectableText { id: afterTwo; x: 160; width: 150; text: "The next stop" }
    }

    TextEdit { id: clipboard; y: 200; textFormat: TextEdit.PlainText }
    SelectableText { id: name; y: 180; width: 90; text: "a-repository-with-a-name-2"; maximumLineCount: 1 }

    Shortcut { id: shortcut; sequence: "F6" }
    SignalSpy { id: presses; target: shortcut; signalName: "activated" }

    TestCase {
        name: "SelectableText"
        when: windowShown

        function edit(item) {
            item.equip();
            return item.reader.edit;
        }

        function test_showsMarkupVerbatim() {
            compare(edit(plain).textFormat, TextEdit.PlainText);
            compare(edit(plain).getText(0, 99), "<b>a</b> path");
        }

        function test_letsTheShortcutsOfTheWindowThrough() {
            presses.clear();
            edit(plain).forceActiveFocus();
            keyClick(Qt.Key_F6);
            compare(presses.count, 1);
            edit(plain).selectAll();
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(presses.count, 1);
        }

        function test_cannotBeChanged() {
            edit(plain).forceActiveFocus();
            keyClick(Qt.Key_X);
            compare(edit(plain).text, "<b>a</b> path");
        }

        function test_takesItsLastLineAtMostButIsCopiedWhole() {
            verify(path.truncated);
            compare(path.implicitHeight, Math.ceil(path.lineSpacing * 2));
            edit(path).forceActiveFocus();
            edit(path).selectAll();
            compare(edit(path).selectedText, path.text);
        }

        function test_createsTheReaderForThePointer() {
            mouseMove(scene, 390, 290);
            const pointed = createTemporaryObject(line, scene);
            compare(pointed.reader, null);
            mouseMove(pointed, 4, 4);
            verify(pointed.reader !== null);
            mouseDoubleClickSequence(pointed, 10, 8);
            compare(pointed.reader.edit.selectedText, "Fits");
            mouseClick(pointed, 4, 4, Qt.RightButton);
            tryVerify(() => pointed.reader.menu !== null && pointed.reader.menu.visible);
            keyClick(Qt.Key_Escape);
            tryVerify(() => !pointed.reader.menu.visible);
        }

        function test_createsTheReaderForTheKeyboard() {
            compare(focused.reader, null);
            verify(focused.activeFocusOnTab);
            focused.forceActiveFocus(Qt.TabFocusReason);
            verify(focused.reader.edit.activeFocus);
            verify(!focused.activeFocusOnTab);
            keyClick(Qt.Key_Backtab);
            verify(!focused.reader.edit.activeFocus);
            verify(!focused.activeFocus);
        }

        function test_assistiveTechnologyFindsOneText() {
            compare(untouched.Accessible.role, Accessible.EditableText);
            compare(untouched.Accessible.name, "Fits");
            verify(untouched.Accessible.readOnly);
            verify(!untouched.Accessible.ignored);
            edit(plain);
            verify(plain.Accessible.ignored);
            compare(edit(plain).Accessible.name, plain.text);
        }

        // Otherwise the words would move under the pointer during a selection.
        function test_theReaderReplacesTheLabel() {
            for (const item of [plain, several]) {
                compare(edit(item).lineCount, shortForm(item).lineCount);
                fuzzyCompare(edit(item).contentHeight, shortForm(item).contentHeight, 0.5);
                fuzzyCompare(edit(item).contentWidth, shortForm(item).contentWidth, 0.5);
            }
        }

        function shortForm(item) {
            return findChild(item, "shown");
        }

        function test_dotsMarkElidedText() {
            edit(plain).forceActiveFocus();
            verify(shortForm(path).visible);
            compare(shortForm(path).lineCount, 2);
            compare(edit(path).opacity, 0);
            verify(!shortForm(plain).visible);
            compare(edit(plain).opacity, 1);
        }

        function test_elidesSeveralLinesInTheMiddle() {
            const words = shortForm(path);
            for (const width of [120, 121, 127, 200]) {
                path.width = width;
                verify(path.truncated);
                verify(!words.truncated);
                compare(words.lineCount, 2);
                verify(words.text.startsWith("/home/somebody/"), words.text);
                verify(words.text.endsWith("folder/"), words.text);
                verify(words.text.includes("\u2026"), words.text);
            }
            path.width = 120;
        }

        function test_elidesOneLineInTheMiddle() {
            verify(shortForm(name).visible);
            verify(shortForm(name).truncated);
            compare(shortForm(name).elide, Text.ElideMiddle);
            compare(shortForm(name).lineCount, 1);
        }

        function test_theFullTextShowsWhileItIsRead() {
            edit(path).forceActiveFocus();
            verify(!shortForm(path).visible);
            compare(edit(path).opacity, 1);
        }

        function test_anElidedTextIsSelectedWithThePointer() {
            edit(plain).forceActiveFocus();
            mouseDoubleClickSequence(edit(path), 10, 8);
            verify(edit(path).selectedText.length > 0);
        }

        function test_theContextMenuCopiesTheSelection() {
            edit(plain).forceActiveFocus();
            edit(plain).select(3, 4);
            mouseClick(edit(plain), 4, 4, Qt.RightButton);
            compare(edit(plain).selectedText, "a");
            tryVerify(() => plain.reader.menu !== null && plain.reader.menu.visible);
            compare(plain.reader.menu.itemAt(0).text, "");
            compare(plain.reader.menu.itemAt(0).title, "Copy");
            mouseClick(plain.reader.menu.itemAt(0));
            compare(pasted(), "a");
            tryVerify(() => !plain.reader.menu.visible);
        }

        function test_theContextMenuCopiesTheWholeWithoutASelection() {
            edit(path).forceActiveFocus();
            edit(path).deselect();
            keyClick(Qt.Key_Menu);
            tryVerify(() => path.reader.menu !== null && path.reader.menu.visible);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            compare(pasted(), path.text);
        }

        function test_theFullTextShowsWhileItsMenuIsOpen() {
            edit(path).forceActiveFocus();
            edit(path).selectAll();
            keyClick(Qt.Key_Menu);
            tryVerify(() => path.reader.menu !== null && path.reader.menu.visible);
            verify(!edit(path).activeFocus);
            compare(edit(path).opacity, 1);
            verify(!shortForm(path).visible);
            keyClick(Qt.Key_Escape);
            tryVerify(() => !path.reader.menu.visible);
        }

        function pasted() {
            clipboard.clear();
            clipboard.paste();
            return clipboard.text;
        }

        function lineOf(item, word) {
            return edit(item).positionToRectangle(item.text.indexOf(word)).y;
        }

        function test_breaksAPathBetweenFoldersIfItFits() {
            compare(edit(twoFolders).lineCount, 2);
            verify(!twoFolders.truncated);
            compare(lineOf(twoFolders, "Projects"), lineOf(twoFolders, "rojects"));
            compare(lineOf(twoFolders, "harbor"), lineOf(twoFolders, "arbor"));
            compare(lineOf(twoFolders, "somebody"), 0);
            verify(lineOf(twoFolders, "harbor") > 0);
        }

        function test_fillsItsLinesWhenElided() {
            compare(edit(path).wrapMode, TextEdit.WrapAnywhere);
        }

        function test_isNotElidedIfItFits() {
            verify(!plain.truncated);
        }

        function test_tabReachesItAndLeavesNoSelection() {
            edit(plain).forceActiveFocus(Qt.TabFocusReason);
            edit(plain).selectAll();
            keyClick(Qt.Key_Tab);
            verify(edit(path).activeFocus);
            compare(edit(plain).selectedText, "");
        }

        function test_aNonStopIsSkippedByTabAndReachedByArrows() {
            edit(firstOfTwo).forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Tab);
            verify(afterTwo.isRead);
            keyClick(Qt.Key_Backtab);
            verify(firstOfTwo.isRead);
            keyClick(Qt.Key_Down);
            verify(secondOfTwo.isRead);
            verify(!firstOfTwo.isRead);
            keyClick(Qt.Key_Up);
            verify(firstOfTwo.isRead);
        }

        function test_aNonStopLeadsToTheNextOne() {
            secondOfTwo.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Tab);
            verify(afterTwo.isRead);
            secondOfTwo.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Backtab);
            verify(firstOfTwo.isRead);
            verify(!secondOfTwo.activeFocusOnTab);
            verify(!secondOfTwo.reader.edit.activeFocusOnTab);
        }

        function test_aNonStopIsSelectableAndAccessible() {
            compare(secondOfTwo.Accessible.role, Accessible.EditableText);
            verify(secondOfTwo.Accessible.focusable);
            mouseDoubleClickSequence(edit(secondOfTwo), 10, 8);
            compare(edit(secondOfTwo).selectedText, "Beside");
            verify(edit(secondOfTwo).Accessible.focusable);
        }

        function test_isSelectedWithThePointer() {
            mouseDoubleClickSequence(edit(plain), 10, 8);
            verify(edit(plain).selectedText.length > 0);
        }
    }
}
