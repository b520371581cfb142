"""The first launch with a screen reader and a keyboard."""

from __future__ import annotations

import time

from endtoend_case import CHOOSE, SCAN, EndToEndCase, main
from program import Program

TITLES = (
    "See what Claude Code loads before it reads a single message",
    "Point it at a local git repository",
    "Run one real scan",
    "One number matters most — the rest is a map",
)
FIRST_BODY = (
    "Every Claude Code session spends some of its context window on startup files — CLAUDE.md, "
    "AGENTS.md, and similar instructions — before you type anything. Loadwick runs one real scan "
    "of a repository and shows you exactly how many tokens that costs, so you can tell whether "
    "your setup is lean or bloated."
)
BEHIND = (CHOOSE, "Scan", "Overview", "Trends", "Compare", "No repository selected")
LONG_ENOUGH_SECONDS = 1.5  # five times the delay after which the sheet comes


class FirstLaunchTest(EndToEndCase):
    """A home in which the program was never started."""

    def setUp(self) -> None:
        super().setUp()
        self.home.forget_preferences()

    def launch(self, *options: str) -> Program:
        """Starts the program and waits for the sheet."""
        program = self.start(*options)
        program.window.wait_for("Next", "button")
        return program

    def assert_no_sheet_comes(self, program: Program) -> None:
        """Watches the window for long enough."""
        time.sleep(LONG_ENOUGH_SECONDS)
        self.assertIsNone(program.window.find("Skip"))
        self.assertTrue(program.window.is_enabled(CHOOSE))

    def test_from_the_first_step_to_the_first_total(self) -> None:
        self.home.make_repository("webshop")
        window = self.launch("--platform-dialog").window
        window.wait_for(TITLES[0], "dialog")
        window.wait_for(TITLES[0], "heading")
        window.wait_for(FIRST_BODY)
        window.wait_for("Step 1 of 4")
        for title in TITLES[1:]:
            window.press("Next")
            window.wait_for(title, "heading")
        self.assertIsNone(window.find("Skip"))
        for words in ("Lean", "Heavy", "Excessive", "actively hurting the session"):
            window.wait_for(words)
        window.press("Got it")
        window.press(CHOOSE)
        window.press("webshop")
        window.press("Choose")
        window.wait_for("webshop")
        window.press(SCAN)
        window.wait_for("Scan complete")
        window.wait_for("42,318")
        self.assertIn("hasCompletedOnboarding=true", self.home.preferences.read_text())

    def test_skip_on_the_first_step_is_remembered_by_the_next_start(self) -> None:
        program = self.launch()
        program.window.press("Skip")
        program.window.wait_for(CHOOSE, "button")
        self.assertEqual(program.close(), 0)
        self.assert_no_sheet_comes(self.open())

    def test_an_unanswered_sheet_reappears(self) -> None:
        self.assertEqual(self.launch().close(), 0)
        self.launch()

    def test_the_keyboard_is_enough(self) -> None:
        program = self.launch()
        for title in TITLES[1:]:
            program.window.key("Return")
            program.window.wait_for(title, "heading")
        program.window.key("Escape")
        program.window.key("Return")
        program.window.wait_for(CHOOSE, "button")
        self.assertIn("hasCompletedOnboarding=true", self.home.preferences.read_text())

    def test_escape_skips(self) -> None:
        program = self.launch()
        program.window.key("Escape")
        program.window.wait_for(CHOOSE, "button")
        self.assert_no_sheet_comes(program)

    def test_nothing_behind_the_sheet_is_found_or_reached(self) -> None:
        program = self.launch()
        program.window.wait_until_gone(CHOOSE)
        self.assertEqual([name for name in BEHIND if program.window.find(name)], [])
        reached = set()
        for _ in range(4):
            program.window.key("Tab")
            focused = program.window.focused()
            reached.add(str(focused.get_name()) if focused else "")
        self.assertLessEqual(reached, {"Skip", "Next"})

    def test_unwritable_preferences_do_not_block_the_program(self) -> None:
        self.home.preferences.mkdir(parents=True)
        program = self.launch()
        program.window.press("Skip")
        program.window.wait_for(CHOOSE, "button")
        self.choose(program, self.home.make_repository("webshop"))
        self.assertEqual(program.close(), 0)
        self.launch()

    def test_unreadable_preferences_do_not_block_the_program(self) -> None:
        self.home.preferences.parent.mkdir(parents=True)
        self.home.preferences.write_bytes(b"\x00\xff[[[\n")
        program = self.launch()
        program.window.press("Skip")
        program.window.wait_for(CHOOSE, "button")
        self.assertEqual(program.close(), 0)
        self.assert_no_sheet_comes(self.open())


if __name__ == "__main__":
    main()
