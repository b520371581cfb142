"""What the tests with the real screen reader share."""

from __future__ import annotations

import os
import unittest
from pathlib import Path

from accessible_tree import xdotool
from endtoend_case import EndToEndCase
from program import Program
from screen_reader import ScreenReader, is_installed
from waiting import WaitFailed

MOST_STOPS = 12  # between two stops of interest
TRANSCRIPTS = "LOADWICK_TRANSCRIPTS"  # names a folder that keeps what was said, for reading


@unittest.skipUnless(is_installed(), "Orca is not installed")
class ReaderCase(EndToEndCase):
    """A test that hears the window."""

    def setUp(self) -> None:
        super().setUp()
        xdotool("mousemove", "0", "0")  # what is under the pointer speaks differently
        self.reader = self.enterContext(ScreenReader())
        self.addCleanup(self._keep_transcript)

    def _keep_transcript(self) -> None:
        folder = os.environ.get(TRANSCRIPTS)
        if folder:
            Path(folder, f"{self._testMethodName}.txt").write_text(self.reader.transcript() + "\n")

    def hears(self, *parts: str) -> None:
        """Waits until the reader has said all parts in this order; else shows what it has said."""
        try:
            self.reader.hears(*parts)
        except WaitFailed as failure:
            self.fail(f"{failure}; the reader said:\n{self.reader.transcript()}")

    def press(self, program: Program, key: str, *parts: str) -> None:
        """Presses a key once the reader is at rest, and waits for what it says to it."""
        self.reader.rests()
        program.window.key(key)
        self.hears(*parts)

    def tab_to(self, program: Program, part: str) -> None:
        """Presses Tab until the reader says that part first."""
        for _ in range(MOST_STOPS):
            self.reader.rests()
            said = self.reader.answer_to("tab", lambda: program.window.key("Tab"))
            if part in said:
                self.hears(part)
                return
        self.fail(f"Tab does not lead to {part!r}; the reader said:\n{self.reader.transcript()}")

    def scan(self, program: Program, name: str) -> None:
        """Chooses a new repository and scans it once, until the reader has said the result."""
        self.choose(program, self.home.make_repository(name))
        self.hears(f"Repository {name} chosen")
        self.scan_again(program)

    def scan_again(self, program: Program) -> None:
        """Scans the chosen repository until the reader has said the result."""
        self.home.hold()
        self.press(program, "ctrl+r", "Scan started")
        self.home.release()
        self.hears("Scan complete.")
