"""A second start over the same history: the existing window comes forward."""

from __future__ import annotations

import subprocess
import time

from accessible_tree import xdotool
from endtoend_case import CHOOSE, EndToEndCase, main, window_command
from program import environment_for
from throw_away_home import ThrowAwayHome
from waiting import LIMIT_SECONDS


class SecondStartTest(EndToEndCase):
    """Two programs on the same home, or on two."""

    def start_again(self) -> subprocess.CompletedProcess[str]:
        """Starts the program once more on the same home and waits for its end."""
        return subprocess.run(
            window_command(),
            env=environment_for(self.home.path),
            timeout=LIMIT_SECONDS,
            check=False,
            stdout=subprocess.PIPE,
            text=True,
        )

    def test_a_second_start_raises_the_first_window(self) -> None:
        program = self.open()
        program.window.key("ctrl+1")  # once the window is active
        xdotool("getactivewindow", "windowminimize")
        second = self.start_again()
        self.assertEqual(second.returncode, 0)
        self.assertIn("Loadwick is open already", second.stdout)
        program.window.key("ctrl+2")
        program.window.wait_for("Recorded data")
        self.assertIsNone(program.process.poll())

    def test_after_a_hung_window_a_new_one_opens(self) -> None:
        hung = self.open()
        hung.process.send_signal(19)  # SIGSTOP: it cannot answer
        start = time.monotonic()
        self.open()
        self.assertLess(time.monotonic() - start, LIMIT_SECONDS)

    def test_another_home_has_a_window_of_its_own(self) -> None:
        first = self.open()
        self.home = self.enterContext(ThrowAwayHome())
        second = self.open()
        second.window.wait_for(CHOOSE, "button")
        self.assertIsNone(first.process.poll())


if __name__ == "__main__":
    main()
