"""Starting on a small screen, and without a display."""

from __future__ import annotations

import subprocess

from accessible_tree import xdotool
from endtoend_case import EndToEndCase, main, window_command
from program import environment_for
from waiting import LIMIT_SECONDS

TITLE_BAR = 40  # what the program leaves to the window manager


class SmallScreenTest(EndToEndCase):
    """On a screen smaller than the usual window."""

    display_height = 720

    def test_the_window_opens_no_higher_than_the_screen(self) -> None:
        program = self.open()
        program.window.key("ctrl+1")  # once the window is active
        answer = xdotool("getactivewindow", "getwindowgeometry", "--shell")
        size = dict(line.split("=", 1) for line in answer.splitlines())
        self.assertEqual(int(size["WIDTH"]), 1180)
        self.assertEqual(int(size["HEIGHT"]), self.display_height - TITLE_BAR)


class NoDisplayTest(EndToEndCase):
    """Without a display that answers."""

    def last_words(self, variable: str, value: str) -> str:
        """The last line on standard error of a start that fails, with this environment."""
        environment = environment_for(self.home.path)
        del environment["QT_QPA_PLATFORM"]
        answer = subprocess.run(
            window_command(),
            env=environment | {variable: value},
            capture_output=True,
            text=True,
            timeout=LIMIT_SECONDS,
            check=False,
        )
        self.assertEqual(answer.returncode, 1)
        self.assertNotIn("Reinstalling", answer.stderr)
        return answer.stderr.splitlines()[-1]

    def test_it_says_which_display_does_not_answer(self) -> None:
        words = self.last_words("DISPLAY", ":987")
        self.assertIn("no display answers", words)
        self.assertIn('DISPLAY is ":987"', words)

    def test_it_says_which_platform_cannot_be_used(self) -> None:
        words = self.last_words("QT_QPA_PLATFORM", "nonsense")
        self.assertIn("the platform that QT_QPA_PLATFORM names cannot be used", words)
        self.assertIn('QT_QPA_PLATFORM is "nonsense"', words)


if __name__ == "__main__":
    main()
