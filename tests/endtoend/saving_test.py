"""The real dialog for saving, from the command that opens it to the file."""

from __future__ import annotations

from endtoend_case import SCAN, EndToEndCase, main
from program import Program
from waiting import until


class SavingTest(EndToEndCase):
    """The toolkit's own dialog, which an X display without a desktop gets."""

    def trends(self) -> Program:
        """The Trends page of a repository that was scanned twice."""
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        for count in (1, 2):
            program.window.press(SCAN)
            until("the recorded scan", lambda: len(self.home.scans()) == count)
            program.window.wait_for("Scan complete")
        program.window.key("ctrl+2")
        return program

    def test_the_data_is_saved_where_the_user_says(self) -> None:
        program = self.trends()
        program.window.press("Save Data…")
        program.window.press("Save")
        file = self.home.path / "loadwick-trend-webshop.csv"
        program.window.wait_for(f"Saved as {file}.")
        table = file.read_bytes().split(b"\r\n")
        self.assertEqual(table[0], b"Repository,Path,Date (UTC),Total tokens,Band")
        self.assertEqual(len(table), 4)  # two scans, and nothing after the last line's end

    def test_enter_saves_under_the_name_that_was_typed(self) -> None:
        program = self.trends()
        program.window.press("Save Data…")
        program.window.wait_for("File name")
        for key in ("ctrl+a", "a", "numbersign", "1", "Return"):
            program.window.key(key)
        file = self.home.path / "a#1.csv"
        program.window.wait_for(f"Saved as {file}.")
        self.assertTrue(file.exists())

    def test_a_file_that_is_there_is_not_replaced_unasked(self) -> None:
        file = self.home.path / "loadwick-trend-webshop.png"
        file.write_bytes(b"precious")
        program = self.trends()
        program.window.press("Save Chart…")
        program.window.press("Save")
        program.window.wait_for(
            f"{file} could not be written: a file of that name is there already. "
            "Choose another name."
        )
        self.assertEqual(file.read_bytes(), b"precious")

    def test_thinking_better_of_it_saves_nothing(self) -> None:
        program = self.trends()
        program.window.press("Save Data…")
        program.window.press("Cancel")
        program.window.wait_until_gone("Cancel")
        self.assertFalse((self.home.path / "loadwick-trend-webshop.csv").exists())


if __name__ == "__main__":
    main()
