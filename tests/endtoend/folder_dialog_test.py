"""The real folder dialog, from the command that opens it to the scan of the chosen folder."""

from __future__ import annotations

import os

from accessible_tree import AccessibleTree
from endtoend_case import CHOOSE, SCAN, EndToEndCase, main
from program import Program
from waiting import LIMIT_SECONDS

TITLE = "Choose a local repository to scan."


class FolderDialogTest(EndToEndCase):
    """The toolkit's own dialog, which an X display without a desktop gets."""

    def open_dialog(self) -> Program:
        """The program with the dialog over its window."""
        program = self.open("--platform-dialog")
        self.ask(program.window)
        return program

    def ask(self, window: AccessibleTree) -> None:
        """Opens the dialog and waits until it takes keys."""
        window.key("ctrl+o")
        window.wait_for(TITLE, "dialog")
        window.wait_until_focused("Directory:")

    def test_the_chosen_folder_is_scanned(self) -> None:
        self.home.make_repository("webshop")
        window = self.open("--platform-dialog").window
        window.press(CHOOSE)
        window.wait_for(TITLE, "dialog")
        window.press("webshop")
        window.press("Choose")
        window.wait_until_gone(TITLE)
        window.press(SCAN)
        window.wait_for("Scan complete")
        self.assertEqual([scan["repositoryName"] for scan in self.home.scans()], ["webshop"])

    def test_a_folder_is_chosen_from_the_list_with_the_keyboard_alone(self) -> None:
        self.home.make_repository("api")
        self.home.make_repository("webshop")
        window = self.open_dialog().window
        window.wait_for("webshop", "table cell")
        window.key("shift+Tab")
        for key in ("Home", "Down", "Tab", "Return"):
            window.key(key)
        window.wait_until_gone(TITLE)
        window.wait_for("webshop", "label")

    def test_enter_chooses_the_path_that_is_typed(self) -> None:
        self.home.make_repository("webshop/server")
        window = self.open_dialog().window
        window.type("webshop/server")
        window.key("Return")
        window.wait_until_gone(TITLE)
        window.wait_for("server", "label")

    def test_a_folder_whose_name_is_not_utf_8_is_chosen_by_its_address(self) -> None:
        self.home.make_repository(b"caf\xe9")
        window = self.open_dialog().window
        window.type(f"file://{self.home.path}/caf%E9")
        window.key("Return")
        window.wait_until_gone(TITLE)
        window.press(SCAN)
        window.wait_for("Scan complete")
        [scan] = self.home.scans()
        self.assertIn("Repository instructions", [row["name"] for row in scan["categories"]])

    def test_names_are_shown_as_they_are(self) -> None:
        self.home.make_repository("<img src=x>&amp;")
        window = self.open_dialog().window
        window.wait_for("<img src=x>&amp;", "table cell")

    def test_files_are_not_listed(self) -> None:
        self.home.make_repository("webshop")
        (self.home.path / "letter.txt").touch()
        window = self.open_dialog().window
        window.wait_for("webshop", "table cell")
        self.assertIsNone(window.find("letter.txt"))

    def test_the_dialog_opens_again_in_the_folder_it_showed_last(self) -> None:
        self.home.make_repository("code/webshop")
        code = os.fspath(self.home.path / "code")
        window = self.open_dialog().window
        window.wait_for("code", "table cell")
        for key in ("shift+Tab", "Home", "Return"):
            window.key(key)
        window.wait_for(code, "combo box")
        window.press("Choose")
        window.wait_until_gone(TITLE)
        window.wait_for("code", "label")
        self.ask(window)
        window.wait_for(code, "combo box")

    def test_cancelling_changes_nothing(self) -> None:
        self.home.make_repository("webshop")
        window = self.open_dialog().window
        window.press("Cancel")
        window.wait_until_gone(TITLE)
        self.ask(window)
        window.key("Escape")
        window.wait_until_gone(TITLE)
        window.wait_for("No repository selected")
        self.assertFalse(window.is_enabled("Scan"))

    def test_no_key_reaches_the_page_behind(self) -> None:
        window = self.open_dialog().window
        window.key("ctrl+2")
        window.press("Cancel")
        window.wait_until_gone(TITLE)
        window.wait_for("Start a context scan")
        window.key("ctrl+2")
        window.wait_until_gone("Start a context scan")

    def test_the_program_ends_while_the_dialog_is_open(self) -> None:
        program = self.open_dialog()
        program.window.key("ctrl+q")
        self.assertEqual(program.process.wait(LIMIT_SECONDS), 0)


if __name__ == "__main__":
    main()
