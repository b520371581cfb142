"""Each failure of a scan, reached through the window; its text is compared exactly."""

from __future__ import annotations

import os
import shutil

from endtoend_case import SCAN, EndToEndCase, main
from program import Program

NOTHING_READ = "The probe session did not produce a startup total."


class FailuresTest(EndToEndCase):
    """Every case of the program's error type."""

    def assert_fails(self, program: Program, headline: str, detail: str) -> None:
        """Scans and expects these texts on the page, and nothing in the history."""
        program.window.press(SCAN)
        program.window.wait_for(detail)
        program.window.wait_for("Scan failed")
        self.assertIn(headline, program.window.texts())
        self.assertEqual(self.home.scans(), [])

    def open_and_choose(self, *options: str) -> Program:
        """The window with a repository chosen."""
        program = self.open(*options)
        self.choose(program, self.home.make_repository("repository"))
        return program

    def test_the_folder_cannot_be_read(self) -> None:
        program = self.open()
        folder = self.home.make_repository("repository")
        self.choose(program, folder)
        shutil.rmtree(folder)
        self.assert_fails(
            program,
            "This folder could not be read.",
            os.fsdecode(folder) + " exists but its contents could not be listed. macOS may be "
            "blocking access — allow Loadwick under System Settings → Privacy & Security → "
            "Files & Folders (or move the repository outside a protected folder) — or the "
            "folder may have been moved or deleted since it was chosen. Nothing was measured "
            "and none of your Claude allowance was used.",
        )
        program.window.wait_for(
            "On Linux there is no such setting: your user needs permission to read and enter "
            + os.fsdecode(folder) + ", and to enter every folder above it."
        )
        self.assertEqual(self.home.runs(), [])

    def test_the_command_is_not_found(self) -> None:
        program = self.open_and_choose()
        self.home.executable.unlink()
        self.assert_fails(
            program,
            "Could not find the claude command.",
            f"Looked in:\n  • {self.home.executable}\n  • /opt/homebrew/bin/claude\n"
            "  • /usr/local/bin/claude\n  • zsh -lc 'command -v claude'",
        )

    def test_a_session_fails_in_each_of_its_ways(self) -> None:
        program = self.open_and_choose()
        for outcome, message, headline, detail in (
            ("plain-text", "The file is broken. <b>Mend</b> it.",
             "The probe session returned output this app could not read.",
             "The file is broken. <b>Mend</b> it."),
            ("nothing", "", "The probe session produced no readable token usage.",
             f"No session transcript was found under {self.home.projects} and the CLI returned no "
             "usage block."),
            ("failed", "Credit balance is too low", "The probe session reported an error.",
             "Credit balance is too low"),
            ("failed", "x" * 501, "The probe session reported an error.", "x" * 500 + "…"),
            ("many-turns", "", NOTHING_READ,
             "No session transcript was found, and the CLI usage block covers 3 turns. That block "
             "accumulates across turns, so it double-counts cached tokens and cannot be shown as "
             "the startup total. Nothing was measured — try again."),
            ("unknown-turns", "", NOTHING_READ,
             "No session transcript was found, and the CLI did not report how many turns its usage "
             "block covers. That block accumulates across turns, so it can only be trusted for a "
             "single-turn session. Nothing was measured — try again."),
            ("signed-out", "", "Claude Code is not signed in.",
             "Run `claude` in Terminal and sign in, then scan again. This app never handles Claude "
             "credentials."),
        ):
            with self.subTest(outcome):
                self.home.play(outcome, message=message)
                self.assert_fails(program, headline, detail)

    def test_the_session_takes_too_long(self) -> None:
        program = self.open_and_choose("--timeout", "0.5")
        self.home.play("hang")
        self.assert_fails(
            program,
            "The probe session took longer than 5 minutes.",
            "Nothing was measured. Try again, or try a smaller repository.",
        )

    def test_a_later_scan_may_succeed(self) -> None:
        program = self.open_and_choose()
        self.home.play("signed-out")
        program.window.press(SCAN)
        program.window.wait_for("Scan failed")
        self.home.play("transcript")
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        self.assertEqual([scan["total"] for scan in self.home.scans()], [42318])


if __name__ == "__main__":
    main()
