"""Scans that succeed: what the window shows, copies and remembers of them."""

from __future__ import annotations

import os
import re
import subprocess

from endtoend_case import CHOOSE, SCAN, EndToEndCase, main, programs
from program import Program, environment_for
from waiting import until

SENTENCE = (
    "The total measured by Claude is 42,318 tokens, which falls in the Heavy band "
    "(30,000–60,000)."
)


class SuccessesTest(EndToEndCase):
    """The path from a folder to a recorded report."""

    display_height = 4000

    def scan(self, program: Program) -> None:
        """Scans the chosen folder successfully."""
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")

    def copy_summary(self, program: Program) -> None:
        """Presses the button at the page's end, which must be in sight."""
        program.window.resize(1180, self.display_height - 100)
        program.window.press("Copy Summary")

    def clipboard(self) -> str:
        """What another program would paste."""
        answer = subprocess.run(
            [str(programs() / "loadwick-clipboard")],
            env=environment_for(self.home.path),
            capture_output=True,
            timeout=30,
            check=False,
        )
        return answer.stdout.decode()

    def test_the_keyboard_is_enough(self) -> None:
        program = self.open()
        self.assertFalse(program.window.is_enabled("Scan"))
        program.window.wait_for("No repository selected")
        self.home.will_choose(self.home.make_repository("webshop"))
        program.window.key("ctrl+o")
        program.window.wait_for("webshop")
        program.window.key("ctrl+r")
        program.window.wait_for(SENTENCE)
        program.window.wait_for("Scan complete")

    def test_the_total_comes_from_the_transcript(self) -> None:
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        self.home.hold()
        program.window.press(SCAN)
        program.window.wait_for("Scanning")
        program.window.wait_for("Scanning…", "button")
        self.assertFalse(program.window.is_enabled("Scanning…"))
        self.assertFalse(program.window.is_enabled(CHOOSE))
        self.home.release()
        program.window.wait_for(SENTENCE)
        program.window.wait_for("42,318")
        program.window.wait_for("Heavy startup context")
        self.copy_summary(program)
        line = "Total: 42,318 tokens — authoritative, reported by Claude (session transcript: "
        until("the summary on the clipboard", lambda: line in self.clipboard())

    def test_the_total_comes_from_the_usage_block(self) -> None:
        self.home.play("usage", input=4, cache_creation=20000, cache_read=5000)
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        self.scan(program)
        program.window.wait_for("Lean startup context")
        self.assertEqual(self.home.scans()[0]["total"], 25004)

    def test_the_summary_has_six_lines(self) -> None:
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        self.scan(program)
        self.copy_summary(program)
        until("the summary on the clipboard", self.clipboard)
        lines = self.clipboard().split("\n")
        self.assertEqual(
            [*lines[:4], lines[5]],
            [
                "Repository: webshop",
                "Total: 42,318 tokens — authoritative, reported by Claude (session transcript: "
                "first assistant message usage).",
                "Band: Heavy (this app's opinion).",
                "Category and file splits are local estimates; only the total is authoritative.",
                f"Claude executable: {self.home.executable}",
            ],
        )
        self.assertRegex(lines[4], r"^Session: [0-9a-f-]{36} · \d+\.\d seconds\.$")

    def test_the_scan_outlives_the_window(self) -> None:
        folder = self.home.make_repository("webshop")
        program = self.open()
        self.choose(program, folder)
        self.scan(program)
        self.assertEqual(program.close(), 0)
        again = self.open()
        self.choose(again, folder)
        self.scan(again)
        scans = self.home.scans()
        self.assertEqual(len(scans), 2)
        for scan in scans:
            self.assertEqual(scan["repositoryName"], "webshop")
            self.assertEqual(scan["repositoryPath"], os.fsdecode(folder))
            self.assertTrue(re.fullmatch(r"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}", scan["id"]))
        self.assertEqual(self.home.history_file.stat().st_mode & 0o777, 0o600)


if __name__ == "__main__":
    main()
