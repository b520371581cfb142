"""Each failure of a scan, reached through the window; its words are read back to the letter."""

from __future__ import annotations

import os
import shutil

from endtoend_case import SCAN, EndToEndCase, main
from program import Program

NOTHING_READ = "The probe session did not produce a startup total."


class FailuresTest(EndToEndCase):
    """One test per case of the program's error type."""

    def assert_fails(self, program: Program, headline: str, detail: str) -> None:
        """Scans and expects these words on the page, and nothing in the history."""
        program.window.press(SCAN)
        program.window.wait_for(headline)
        program.window.wait_for("Scan failed")
        self.assertIn(detail, program.window.texts())
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

    def test_the_output_cannot_be_read(self) -> None:
        program = self.open_and_choose()
        self.home.play("plain-text", message="The configuration file is broken. <b>Mend</b> it.")
        self.assert_fails(
            program,
            "The probe session returned output this app could not read.",
            "The configuration file is broken. <b>Mend</b> it.",
        )

    def test_there_is_no_transcript(self) -> None:
        program = self.open_and_choose()
        self.home.play("nothing")
        self.assert_fails(
            program,
            "The probe session produced no readable token usage.",
            f"No session transcript was found under {self.home.projects} and the CLI returned "
            "no usage block.",
        )

    def test_the_session_fails(self) -> None:
        program = self.open_and_choose()
        self.home.play("failed", message="Credit balance is too low")
        self.assert_fails(
            program, "The probe session reported an error.", "Credit balance is too low"
        )

    def test_a_long_message_is_cut(self) -> None:
        program = self.open_and_choose()
        self.home.play("failed", message="x" * 501)
        self.assert_fails(program, "The probe session reported an error.", "x" * 500 + "…")

    def test_the_usage_covers_several_turns(self) -> None:
        program = self.open_and_choose()
        self.home.play("many-turns")
        self.assert_fails(
            program,
            NOTHING_READ,
            "No session transcript was found, and the CLI usage block covers 3 turns. That block "
            "accumulates across turns, so it double-counts cached tokens and cannot be shown as "
            "the startup total. Nothing was measured — try again.",
        )

    def test_nobody_is_signed_in(self) -> None:
        program = self.open_and_choose()
        self.home.play("signed-out")
        self.assert_fails(
            program,
            "Claude Code is not signed in.",
            "Run `claude` in Terminal and sign in, then scan again. This app never handles Claude "
            "credentials.",
        )

    def test_the_session_takes_too_long(self) -> None:
        program = self.open_and_choose("--timeout", "0.5")
        self.home.play("hang")
        self.assert_fails(
            program,
            "The probe session took longer than 5 minutes.",
            "Nothing was measured. Try again, or try a smaller repository.",
        )

    def test_the_turns_are_unknown(self) -> None:
        program = self.open_and_choose()
        self.home.play("unknown-turns")
        self.assert_fails(
            program,
            NOTHING_READ,
            "No session transcript was found, and the CLI did not report how many turns its usage "
            "block covers. That block accumulates across turns, so it can only be trusted for a "
            "single-turn session. Nothing was measured — try again.",
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
