"""A scan's progress, as a screen reader hears it."""

from __future__ import annotations

import time
from typing import Any

from gi.repository import GLib

from accessible_tree import Atspi, unless_gone
from endtoend_case import SCAN, EndToEndCase, main
from program import Program
from waiting import until

EVENT = "object:property-change:accessible-name"
SOME_SECONDS = 2.5  # the time on the page changes twice
STARTED, ENDED, FAILED = "Scanning", "Scan complete", "Scan failed"


class NameChanges:
    """The new names of one program's objects, in the order the bus reported them."""

    def __init__(self, process: int) -> None:
        self._process = process
        self.names: list[str] = []
        self._listener = Atspi.EventListener.new(self._note)
        self._listener.register(EVENT)

    def __enter__(self) -> "NameChanges":
        return self

    def __exit__(self, *_: object) -> None:
        self._listener.deregister(EVENT)

    def _note(self, event: Any) -> None:
        if unless_gone(event.source.get_process_id, 0) == self._process:
            self.names.append(str(unless_gone(event.source.get_name, "")))

    def _hear(self) -> None:
        """Processes the pending events, since no event loop runs."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass

    def wait_for(self, name: str) -> None:
        """Returns once an object was given this name."""

        def heard() -> bool:
            self._hear()
            return name in self.names

        until(f"the announcement of {name!r}; announced were {self.names}", heard)


class ScanAnnouncementsTest(EndToEndCase):
    """The status text in the sidebar changes its name, and the bus says so."""

    def open_and_choose(self) -> Program:
        """The window with a repository chosen."""
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        return program

    def test_the_start_and_the_end_of_a_scan_are_announced(self) -> None:
        program = self.open_and_choose()
        self.home.hold()
        with NameChanges(program.process.pid) as changes:
            program.window.press(SCAN)
            changes.wait_for(STARTED)
            self.assertNotIn(ENDED, changes.names)
            self.home.release()
            changes.wait_for(ENDED)
            self.assertNotIn(FAILED, changes.names)

    def test_no_second_of_a_scan_is_announced(self) -> None:
        program = self.open_and_choose()
        self.home.hold()
        with NameChanges(program.process.pid) as changes:
            program.window.press(SCAN)
            changes.wait_for(STARTED)
            program.window.wait_for("Running for less than a minute")
            time.sleep(SOME_SECONDS)
            self.home.release()
            changes.wait_for(ENDED)
        self.assertEqual([name for name in changes.names if name.startswith("0:")], [])

    def test_the_failure_of_a_scan_is_announced(self) -> None:
        program = self.open_and_choose()
        self.home.play("plain-text", message="No session.")
        with NameChanges(program.process.pid) as changes:
            program.window.press(SCAN)
            changes.wait_for(STARTED)
            changes.wait_for(FAILED)
            self.assertNotIn(ENDED, changes.names)


if __name__ == "__main__":
    main()
