"""What the end-to-end tests share: one display per script, one home and one program per test."""

from __future__ import annotations

import os
import sys
import unittest
from pathlib import Path
from typing import Optional, Sequence

from processes import has_handle_of
from program import Program, environment_for
from session import Display, run_again_in_own_session
from throw_away_home import ThrowAwayHome
from waiting import until

CHOOSE = "Choose Repository…"
SCAN = "Scan Again"  # as soon as any repository is chosen


def programs() -> Path:
    """The folder that holds the built programs: the script's first argument."""
    return Path(os.environ["LOADWICK_PROGRAMS"])


def window_command(*options: str) -> list[str]:
    """The command that opens the window on a throw-away home."""
    return [str(programs() / "loadwick-stage"), "window", *options]


class EndToEndCase(unittest.TestCase):
    """A test with a throw-away home and the means to open the window on it."""

    maxDiff = None
    display_height = 900
    display: Display

    @classmethod
    def setUpClass(cls) -> None:
        cls.display = Display(cls.display_height)
        cls.display.__enter__()
        cls.addClassCleanup(cls.display.__exit__)

    def setUp(self) -> None:
        self.home = self.enterContext(ThrowAwayHome())

    def start(
        self, *options: str, environment: Optional[dict[str, str]] = None, tracer: Sequence[str] = ()
    ) -> Program:
        """Starts the program, under a tracer if one is given; it ends with the test."""
        command = [*tracer, *window_command(*options)]
        program = Program(command, environment_for(self.home.path) | (environment or {}))
        self.addCleanup(program.kill)
        return program

    def open(self, *options: str) -> Program:
        """Opens the window; it closes with the test."""
        program = self.start(*options)
        program.window.wait_for(CHOOSE, "button")
        return program

    def choose(self, program: Program, folder: bytes) -> None:
        """Chooses a folder and waits until the window shows it."""
        self.home.will_choose(folder)
        program.window.press(CHOOSE)
        program.window.wait_for(SCAN, "button")

    def wait_for_session(self, count: int = 1) -> int:
        """The process id of the session last started, once there are `count`."""
        until(f"session number {count}", lambda: len(self.home.runs()) >= count)
        return self.home.runs()[-1]

    def wait_for_watched_session(self, program: Program) -> int:
        """The process id of the session, once it does not outlive the program."""
        session = self.wait_for_session()
        until("the session's handle", lambda: has_handle_of(program.process.pid, session))
        return session


def main() -> None:
    """Runs the tests of the calling script; the first failure does not stop the others."""
    run_again_in_own_session()
    if len(sys.argv) > 1 and not sys.argv[1].startswith("-"):
        os.environ["LOADWICK_PROGRAMS"] = sys.argv.pop(1)
    unittest.main(verbosity=2, warnings="ignore")  # libatspi marks its own getters
