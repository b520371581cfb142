"""How the program starts where there is little room for it, or no display."""

from __future__ import annotations

import subprocess

from endtoend_case import EndToEndCase, main, programs
from program import environment_for
from waiting import LIMIT_SECONDS

TITLE_BAR = 40  # what the program leaves to the window manager


class SmallScreenTest(EndToEndCase):
    """On a screen lower than the window is used to be."""

    display_height = 720

    def test_the_window_opens_no_higher_than_the_screen(self) -> None:
        program = self.open()
        program.window.key("ctrl+1")  # once the window is active
        answer = subprocess.run(
            ["xdotool", "getactivewindow", "getwindowgeometry", "--shell"],
            check=True,
            capture_output=True,
            text=True,
            timeout=LIMIT_SECONDS,
        )
        size = dict(line.split("=", 1) for line in answer.stdout.splitlines())
        self.assertEqual(int(size["WIDTH"]), 1180)
        self.assertEqual(int(size["HEIGHT"]), self.display_height - TITLE_BAR)


class NoDisplayTest(EndToEndCase):
    """Without a display that answers."""

    def test_it_says_which_display_does_not_answer(self) -> None:
        answer = subprocess.run(
            [str(programs() / "loadwick-endtoend")],
            env=environment_for(self.home.path) | {"DISPLAY": ":987"},
            capture_output=True,
            text=True,
            timeout=LIMIT_SECONDS,
            check=False,
        )
        self.assertEqual(answer.returncode, 1)
        self.assertIn("no display answers", answer.stderr)
        self.assertIn('DISPLAY is ":987"', answer.stderr)
        self.assertNotIn("Reinstalling", answer.stderr)


if __name__ == "__main__":
    main()
