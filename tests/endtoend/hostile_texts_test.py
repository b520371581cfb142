"""Outside texts that hold markup: every page shows them verbatim and loads nothing."""

from __future__ import annotations

import json
import os
import re
from pathlib import Path

from endtoend_case import SCAN, main
from program import Program
from traced_case import TracedCase
from waiting import until

IMAGE = "<img src={}>"
REPOSITORY = IMAGE.format("x")


class HostileTextsTest(TracedCase):
    """Every text that the window takes from outside names a picture that would be loaded as markup."""

    display_height = 4000

    def setUp(self) -> None:
        super().setUp()
        self.bait = self.home.path / "bait.png"
        self.bait.write_bytes(b"no picture")
        self.markup = IMAGE.format(f"file://{self.bait}")

    def record(self, number: int) -> dict[str, object]:
        """A recorded scan with markup in each of its texts."""
        return {
            "id": f"6BA7B810-9DAD-11D1-80B4-00C04FD430C{number}",
            "date": f"2026-03-0{number}T09:15:27Z",
            "repositoryName": f"{self.markup} {number % 2}",
            "repositoryPath": f"/{self.markup}/{number % 2}",
            "total": 25000 + number,
            "categories": [{"name": f"category {self.markup}", "tokens": 20000 + number}],
        }

    def plant(self) -> None:
        """Puts the markup into the history and the weekly log."""
        self.home.history_file.parent.mkdir(parents=True)
        history = {"version": 1, "scans": [self.record(number) for number in (1, 2, 3, 4)]}
        self.home.history_file.write_text(json.dumps(history), encoding="utf-8")
        weekly = self.home.path / "Library" / "Logs" / "token-kpi" / "weekly.jsonl"
        weekly.parent.mkdir(parents=True)
        words = {"window": {"start": self.markup, "end": self.markup}, "timestamp": self.markup}
        weekly.write_text(
            json.dumps({"median_tokens_per_session": 1, "tokens_per_pr": 2, **words}) + "\n",
            encoding="utf-8",
        )

    def open_tall(self) -> Program:
        """The window, tall enough for each page, with a log of every file that it opens."""
        program = self.open_traced("open,openat,socket")
        program.window.resize(1180, self.display_height - 100)
        return program

    def assert_shows_markup(self, program: Program, page: str) -> None:
        """Expects the markup on the page, verbatim."""
        program.window.key(page)
        until(f"the markup on {page}", lambda: self.shown(program))

    def shown(self, program: Program) -> list[str]:
        """The texts on the page that hold the markup."""
        return [text for text in program.window.texts() if self.markup in text]

    def assert_loaded_nothing(self, program: Program) -> None:
        """Expects that the bait was not opened and no network was used."""
        trace = self.close_traced(program)
        self.assertTrue(REPOSITORY in trace, "the trace does not record opened files")
        self.assertFalse(self.bait.name in trace, "the picture was opened")
        self.assertEqual(set(re.findall(r"\bsocket\((\w+),", trace)), {"AF_UNIX"})

    def repository(self) -> bytes:
        """A folder whose name and whose files' names are markup too."""
        folder = self.home.make_repository(REPOSITORY, "@<b>imported.md")
        Path(os.fsdecode(folder), "<b>imported.md").write_text("Be brief.\n", encoding="utf-8")
        return folder

    def test_every_page_shows_a_good_scan_verbatim(self) -> None:
        self.plant()
        program = self.open_tall()
        self.choose(program, self.repository())
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        program.window.wait_for(REPOSITORY)
        for page in ("ctrl+2", "ctrl+3", "ctrl+1"):
            self.assert_shows_markup(program, page)
        self.assert_loaded_nothing(program)

    def test_a_session_that_fails_in_markup_is_shown_verbatim(self) -> None:
        program = self.open_tall()
        self.choose(program, self.repository())
        self.home.play("failed", message=self.markup)
        program.window.press(SCAN)
        program.window.wait_for("Scan failed")
        until("the session's words", lambda: self.shown(program))
        self.assert_loaded_nothing(program)


if __name__ == "__main__":
    main()
