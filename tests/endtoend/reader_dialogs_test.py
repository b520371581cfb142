"""Every dialog, heard through the real screen reader."""

from __future__ import annotations

import time

from endtoend_case import main
from reader_case import ReaderCase
from waiting import until


class ReaderDialogsTest(ReaderCase):
    """A dialog says what it asks and what it would do."""

    def test_choosing_a_folder_is_heard(self) -> None:
        program = self.open("--platform-dialog")
        self.press(program, "ctrl+o", "Choose a local repository to scan.", "Directory")
        self.press(program, "Escape", "Loadwick")

    def test_clearing_and_saving_are_heard(self) -> None:
        program = self.open()
        self.scan(program, "webshop")
        self.scan_again(program)
        self.press(program, "ctrl+2", "Trends")
        self.press(program, "F6", "Startup tokens")
        self.press(program, "Tab", "Save Data…")
        self.press(program, "space", "Save the data", "File name")
        self.press(program, "Return", "Saved as")
        self.press(program, "Tab", "Save Chart…")
        self.press(program, "space", "Save the chart", "File name")
        self.press(program, "Escape", "Save Chart…")
        self.tab_to(program, "Previous runs")
        self.hears("webshop", "42,318 tokens, Heavy")
        self.tab_to(program, "Clear Recorded Data…")
        self.press(program, "space", "Delete every recorded scan?", "This cannot be undone.", "Cancel")
        self.press(program, "Tab", "Delete 2 Recorded Scans")
        self.press(program, "Escape", "Clear Recorded Data…")

    def test_the_menu_of_repositories_is_heard(self) -> None:
        program = self.open()
        self.scan(program, "webshop")
        scanned = int(time.time())
        until("the next second, as the newest is first", lambda: int(time.time()) > scanned)
        self.scan(program, "wiki")
        self.press(program, "F6", "/wiki")
        self.press(program, "shift+Tab", "Scan Again")
        self.press(program, "shift+Tab", "Scanned repositories")
        self.press(program, "space", "2 repositories")
        program.window.wait_for("webshop, 42,318 tokens, Heavy", "menu item")
        self.press(program, "Down", "wiki", "tmp")
        self.press(program, "Down", "webshop", "tmp")
        self.press(program, "Return", "Repository webshop chosen")


if __name__ == "__main__":
    main()
