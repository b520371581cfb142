"""The real folder dialog, from the command that opens it to the scan of what it gave."""

from __future__ import annotations

from endtoend_case import CHOOSE, SCAN, EndToEndCase, main


class FolderDialogTest(EndToEndCase):
    """The toolkit's own dialog, which an X display without a desktop gets."""

    def test_the_chosen_folder_is_scanned(self) -> None:
        self.home.make_repository("webshop")
        program = self.open("--platform-dialog")
        program.window.press(CHOOSE)
        program.window.press("webshop")
        program.window.press("Choose")
        program.window.wait_for("webshop")
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        self.assertEqual([scan["repositoryName"] for scan in self.home.scans()], ["webshop"])

    def test_a_folder_is_chosen_by_its_name_with_the_keyboard_alone(self) -> None:
        self.home.make_repository("api")
        self.home.make_repository("webshop")
        program = self.open("--platform-dialog")
        program.window.key("ctrl+o")
        program.window.wait_for("webshop")
        program.window.key("Down")
        program.window.key("Down")
        program.window.press("Choose")
        program.window.wait_until_gone("Choose")
        program.window.wait_for("webshop")

    def test_thinking_better_of_it_changes_nothing(self) -> None:
        self.home.make_repository("webshop")
        program = self.open("--platform-dialog")
        program.window.press(CHOOSE)
        program.window.press("Cancel")
        program.window.wait_until_gone("Cancel")
        program.window.wait_for("No repository selected")
        self.assertFalse(program.window.is_enabled("Scan"))


if __name__ == "__main__":
    main()
