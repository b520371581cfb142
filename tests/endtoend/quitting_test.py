"""Quitting while a session runs: the program and the session end within one second."""

from __future__ import annotations

import os
import signal
import time

from endtoend_case import SCAN, EndToEndCase, main
from processes import is_running
from program import Program
from waiting import until

LIMIT_SECONDS = 1.0


class QuittingTest(EndToEndCase):
    """Signals and a closed window, with sessions that obey signals and sessions that ignore them."""

    def scanning(self, outcome: str) -> tuple[Program, int]:
        """A program in the middle of a scan, and its session's process id."""
        self.home.play(outcome)
        program = self.open()
        self.choose(program, self.home.make_repository("repository"))
        program.window.press(SCAN)
        return program, self.wait_for_watched_session(program)

    def assert_ends(self, outcome: str, signal_number: int) -> None:
        """Sends the signal and expects program and session to be gone in time."""
        program, session = self.scanning(outcome)
        start = time.monotonic()
        program.process.send_signal(signal_number)
        program.process.wait(30)
        until("the session's end", lambda: not is_running(session))
        self.assertLess(time.monotonic() - start, LIMIT_SECONDS)
        self.assertEqual(self.home.scans(), [])

    def test_sigterm_ends_a_session_that_obeys_signals(self) -> None:
        self.assert_ends("hang", signal.SIGTERM)

    def test_sigterm_ends_a_session_that_ignores_signals(self) -> None:
        self.assert_ends("stubborn", signal.SIGTERM)

    def test_sigint_does_the_same(self) -> None:
        self.assert_ends("hang", signal.SIGINT)

    def test_sighup_does_the_same(self) -> None:
        self.assert_ends("stubborn", signal.SIGHUP)

    def test_closing_the_window_ends_the_session(self) -> None:
        program, session = self.scanning("stubborn")
        start = time.monotonic()
        program.close()
        until("the session's end", lambda: not is_running(session))
        # One second, plus the time to find the window and ask it to close.
        self.assertLess(time.monotonic() - start, LIMIT_SECONDS + 1.0)

    def test_a_killed_program_takes_its_session_with_it(self) -> None:
        program, session = self.scanning("hang")
        program.process.kill()
        until("the session's end", lambda: not is_running(session))

    def test_an_idle_program_ends_at_once(self) -> None:
        self.assertLess(self.open().ask_to_end(), LIMIT_SECONDS)

    def test_ending_leaves_no_file_behind(self) -> None:
        program = self.open()
        before = set(os.listdir(self.home.path))
        program.ask_to_end()
        self.assertEqual(set(os.listdir(self.home.path)), before)


if __name__ == "__main__":
    main()
