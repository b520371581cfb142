"""An idle window: it draws nothing and hardly wakes up."""

from __future__ import annotations

import time
from pathlib import Path

from accessible_tree import role_of, xdotool
from endtoend_case import CHOOSE, SCAN, EndToEndCase, main, window_command
from processes import wakes_of
from program import Program, environment_for
from waiting import until

IDLE_SECONDS = 10.0
MOST_WAKES = 2
SCREEN = (1280, 900)
REST_SECONDS = 2.0  # between two checks whether a window is at rest
FRAME = b"rendered with"  # in the line that the toolkit logs for a frame
TURNS = 110  # at most: the symbols turn by ten steps a second
TICKS = 11  # the seconds of a scan's time
WAKES_OF_A_FRAME = 6
MOST_SCAN_WAKES = 20  # of those that neither turn nor tick


class WatchedProgram(Program):
    """A program that logs each frame it draws."""

    def __init__(self, home: Path, name: str) -> None:
        self.name = name
        self._log = home / f"{name}.log"
        self._log.touch()
        rules = {"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop=true"}
        command = window_command("--beside-others")
        super().__init__(command, environment_for(home) | rules, self._log)

    def frames(self) -> int:
        """The number of frames drawn so far."""
        return self._log.read_bytes().count(FRAME)

    def wakes(self) -> int:
        """The number of wake-ups so far."""
        return wakes_of(self.process.pid)

    def is_silent(self) -> bool:
        """Whether nothing is announced."""
        return not self.window.announcements()

    def is_still(self) -> bool:
        """Whether nothing is drawn for a while."""
        frames = self.frames()
        time.sleep(REST_SECONDS)
        return frames == self.frames()

    def is_at_rest(self) -> bool:
        """Whether nothing happens for a while."""
        frames, wakes = self.frames(), self.wakes()
        time.sleep(REST_SECONDS)
        return frames == self.frames() and self.wakes() - wakes <= MOST_WAKES


class IdleTest(EndToEndCase):
    """Each state of the window, left alone. All of them are watched during the same ten seconds."""

    def open_watched(self, name: str) -> WatchedProgram:
        """Opens one more window; it is closed at the end of the test."""
        program = WatchedProgram(self.home.path, name)
        self.addCleanup(program.kill)
        program.window.wait_for(CHOOSE, "button")
        return program

    def open_scanned(self, name: str, outcome: str, sign: str) -> WatchedProgram:
        """Opens a window and scans with the given outcome, until the window shows it."""
        self.home.play(outcome)
        program = self.open_watched(name)
        self.choose(program, self.repository)
        program.window.press(SCAN)
        program.window.wait_for(sign)
        return program

    def assert_sleeps(self, programs_at_rest: list[WatchedProgram]) -> None:
        """Watches all the windows for ten seconds."""
        for program in programs_at_rest:
            until(f"the end of what {program.name} announces", program.is_silent)
            until(f"the rest of {program.name}", program.is_at_rest)
        before = [(program.frames(), program.wakes()) for program in programs_at_rest]
        time.sleep(IDLE_SECONDS)
        for program, (frames, wakes) in zip(programs_at_rest, before):
            with self.subTest(program.name):
                self.assertGreater(frames, 0, "frames are not counted")
                self.assertEqual(program.frames() - frames, 0)
                self.assertLessEqual(program.wakes() - wakes, MOST_WAKES)

    def open_read(self) -> WatchedProgram:
        """Opens a window with a result and focuses one of its texts."""
        program = self.open_scanned("a text with the keyboard", "transcript", "Scan complete")
        program.window.key("Tab")
        until("the keyboard in a text", lambda: self.focused_role(program) == "text")
        return program

    def focused_role(self, program: WatchedProgram) -> str:
        """The role of the focused object."""
        focused = program.window.focused()
        return role_of(focused) if focused else ""

    def test_an_idle_window_draws_no_frame_and_sleeps(self) -> None:
        self.repository = self.home.make_repository("webshop")
        self.assert_sleeps(
            [
                self.open_watched("empty"),
                self.open_scanned("result", "transcript", "Scan complete"),
                self.open_scanned("failure", "signed-out", "Scan failed"),
                self.open_read(),
            ]
        )

    def test_a_running_scan_moves_only_what_is_seen(self) -> None:
        self.home.hold()
        self.addCleanup(self.home.release)
        self.repository = self.home.make_repository("webshop")
        overview, trends, minimised = (
            self.open_scanned(name, "transcript", "Scanning")
            for name in ("Overview", "Trends", "minimised")
        )
        xdotool("getactivewindow", "windowminimize")
        minimised.window.wait_until_inactive()
        trends.window.press("Trends")
        self.assert_paces({overview: TURNS + TICKS, trends: TURNS, minimised: 0})

    def test_a_running_scan_moves_nothing_in_a_covered_window(self) -> None:
        self.home.hold()
        self.addCleanup(self.home.release)
        self.repository = self.home.make_repository("webshop")
        covered = self.open_scanned("covered", "transcript", "Scanning")
        covering = self.open_watched("covering")
        covered.window.wait_until_inactive()
        covering.window.resize(*SCREEN)
        xdotool("getactivewindow", "windowmove", "0", "0")
        until("the covered window to be still", covered.is_still)
        self.assert_paces({covered: 0})
        covering.kill()
        frames = covered.frames()
        until("the symbols to turn again", lambda: covered.frames() > frames + TICKS)

    def assert_paces(self, most_frames: dict[WatchedProgram, int]) -> None:
        """Watches the windows for ten seconds: a frame for each step of the symbols and each second of
        the time, a few wake-ups for a frame, and nothing where neither can be seen."""
        for program in most_frames:
            until(f"the end of what {program.name} announces", program.is_silent)
        time.sleep(REST_SECONDS)
        before = [(program.frames(), program.wakes()) for program in most_frames]
        time.sleep(IDLE_SECONDS)
        for (program, most), (frames, wakes) in zip(most_frames.items(), before):
            with self.subTest(program.name):
                self.assertLessEqual(program.frames() - frames, most)
                self.assertGreaterEqual(program.frames() - frames, most / 10)
                self.assertLessEqual(program.wakes() - wakes, MOST_SCAN_WAKES + WAKES_OF_A_FRAME * most)


if __name__ == "__main__":
    main()
