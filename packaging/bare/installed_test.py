"""The installed program on a machine with nothing but its package's dependencies."""

from __future__ import annotations

import shlex
from pathlib import Path

from endtoend_case import CHOOSE, SCAN, EndToEndCase, main
from program import Program, environment_for

ENTRY = Path("/usr/share/applications/io.github.loadwick.Loadwick.desktop")


def menu_command() -> list[str]:
    """What the desktop's menu executes."""
    lines = ENTRY.read_text(encoding="utf-8").splitlines()
    return next(shlex.split(line[5:]) for line in lines if line.startswith("Exec="))


class InstalledTest(EndToEndCase):
    """The program as its menu entry starts it, in a home of its own."""

    def start(self, *options: str) -> Program:
        program = Program([*menu_command(), *options], environment_for(self.home.path))
        self.addCleanup(program.kill)
        return program

    def test_a_folder_is_chosen_and_scanned(self) -> None:
        self.home.make_repository("webshop")
        program = self.open()
        program.window.press(CHOOSE)
        program.window.press("webshop")
        program.window.press("Choose")
        program.window.wait_for("webshop")
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        self.assertEqual([scan["repositoryName"] for scan in self.home.scans()], ["webshop"])
        self.assertEqual(program.close(), 0)

    def test_a_first_start_explains_itself(self) -> None:
        self.home.forget_preferences()
        program = self.start()
        program.window.wait_for("Skip", "button")
        program.window.wait_for("See what Claude Code loads before it reads a single message")


if __name__ == "__main__":
    main()
