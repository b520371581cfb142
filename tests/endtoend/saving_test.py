"""The real dialog for saving, from the command that opens it to the file."""

from __future__ import annotations

import csv
import os
import subprocess
from pathlib import Path

from accessible_tree import AccessibleTree
from endtoend_case import SCAN, EndToEndCase, main
from waiting import until


class SavingTest(EndToEndCase):
    """The toolkit's own dialog, which an X display without a desktop gets."""

    display_height = 4000

    def trends(self) -> AccessibleTree:
        """The Trends page of a repository that was scanned twice."""
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        for count in (1, 2):
            program.window.press(SCAN)
            until("the recorded scan", lambda: len(self.home.scans()) == count)
            program.window.wait_for("Scan complete")
        program.window.key("ctrl+2")
        return program.window

    def dialog(self, command: str) -> AccessibleTree:
        """The window with the dialog of a command over its Trends page."""
        window = self.trends()
        self.ask(window, command)
        return window

    def ask(self, window: AccessibleTree, command: str) -> None:
        """Opens the dialog and waits until it takes keys."""
        window.press(command)
        window.wait_until_focused("File name:")

    def test_the_data_is_saved_where_the_user_says(self) -> None:
        window = self.dialog("Save Data…")
        window.wait_for("Save the data", "dialog")
        window.press("Save")
        file = self.home.path / "loadwick-trend-webshop.csv"
        window.wait_for(f"Saved as {file}.")
        table = file.read_bytes().split(b"\r\n")
        self.assertEqual(table[0], b"Repository,Path,Date (UTC),Total tokens,Band")
        self.assertEqual(len(table), 4)  # two scans, and nothing after the last line break

    def test_the_data_of_a_report_names_its_repository_and_date(self) -> None:
        program = self.open()
        repository = self.home.make_repository("webshop, old")
        self.choose(program, repository)
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        program.window.resize(1180, self.display_height - 100)
        self.ask(program.window, "Save Data…")
        program.window.press("Save")
        day = self.home.scans()[0]["date"][:10]  # the program's time zone is UTC
        file = self.home.path / f"loadwick-report-webshop--old-{day}.csv"
        program.window.wait_for(f"Saved as {file}.")
        rows = list(csv.DictReader(file.read_text().splitlines()))
        self.assertEqual({row["Repository"] for row in rows}, {"webshop, old"})
        self.assertEqual({row["Path"] for row in rows}, {os.fsdecode(repository)})
        self.assertEqual({row["Date (UTC)"] for row in rows}, {self.home.scans()[0]["date"]})
        self.assertEqual(rows[0]["Kind"], "Total")

    def test_the_report_is_a_valid_page_that_shows_names_as_text(self) -> None:
        program = self.open()
        repository = self.home.make_repository("<script>alert(1)<&script>", "@<img>.md\n")
        Path(os.fsdecode(repository), "<img>.md").write_text("Be brief.\n" * 40)
        self.choose(program, repository)
        window = program.window
        window.press(SCAN)
        window.wait_for("Scan complete")
        window.resize(1180, self.display_height - 100)
        self.ask(window, "Save Report…")
        window.wait_for("Save the report", "dialog")
        window.type("report")
        window.press("Save")
        file = self.home.path / "report.html"
        window.wait_for(f"Saved as {file}.")
        self.assertIn("&lt;script&gt;alert(1)", file.read_text())
        tidy = subprocess.run(
            ["tidy", "-quiet", "-errors", str(file)], capture_output=True, text=True, timeout=60
        )
        self.assertEqual((tidy.returncode, tidy.stderr), (0, ""))

    def test_what_is_typed_takes_the_place_of_the_suggested_name(self) -> None:
        window = self.dialog("Save Data…")
        window.type("a#1 v1.2")
        window.key("Return")
        file = self.home.path / "a#1 v1.2.csv"
        window.wait_for(f"Saved as {file}.")
        self.assertTrue(file.exists())

    def test_the_ending_follows_the_kind_of_file(self) -> None:
        window = self.dialog("Save Chart…")
        window.wait_for("Save the chart", "dialog")
        for key in ("Tab", "Down"):
            window.key(key)
        window.wait_for("loadwick-trend-webshop.svg", "text")
        window.press("Save")
        file = self.home.path / "loadwick-trend-webshop.svg"
        window.wait_for(f"Saved as {file}.")
        self.assertIn(b"<svg", file.read_bytes())

    def test_a_file_is_replaced_when_the_user_agrees(self) -> None:
        file = self.home.path / "<b>precious<b>.csv"
        file.write_bytes(b"precious")
        window = self.dialog("Save Data…")
        window.type("<b>precious<b>")
        window.key("Return")
        window.wait_for("<b>precious<b>.csv already exists.\nDo you want to replace it?")
        window.press("No")
        self.assertEqual(file.read_bytes(), b"precious")
        window.press("Save")
        window.press("Yes")
        window.wait_for(f"Saved as {file}.")
        self.assertIn(b"Total tokens", file.read_bytes())

    def test_cancelling_saves_nothing(self) -> None:
        window = self.dialog("Save Data…")
        window.press("Cancel")
        window.wait_until_gone("Cancel")
        self.ask(window, "Save Data…")
        window.key("Escape")
        window.wait_until_gone("Cancel")
        self.assertFalse((self.home.path / "loadwick-trend-webshop.csv").exists())


if __name__ == "__main__":
    main()
