"""A scan's course, as a screen reader is told of it without looking."""

from __future__ import annotations

from endtoend_case import SCAN, EndToEndCase, main
from name_changes import NameChanges
from program import Program

STARTED, ENDED, FAILED = "Scanning", "Scan complete", "Scan failed"


class ScanAnnouncementsTest(EndToEndCase):
    """The status text in the sidebar changes its name, and the bus says so."""

    def open_and_choose(self) -> Program:
        """The window with a repository chosen."""
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        return program

    def test_the_start_and_the_end_of_a_scan_are_told(self) -> None:
        program = self.open_and_choose()
        self.home.hold()
        with NameChanges(program.process.pid) as changes:
            program.window.press(SCAN)
            changes.wait_for(STARTED)
            self.assertNotIn(ENDED, changes.names)
            self.home.release()
            changes.wait_for(ENDED)
            self.assertNotIn(FAILED, changes.names)

    def test_the_failure_of_a_scan_is_told(self) -> None:
        program = self.open_and_choose()
        self.home.play("plain-text", message="No session.")
        with NameChanges(program.process.pid) as changes:
            program.window.press(SCAN)
            changes.wait_for(STARTED)
            changes.wait_for(FAILED)
            self.assertNotIn(ENDED, changes.names)


if __name__ == "__main__":
    main()
