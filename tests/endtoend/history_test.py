"""What the window makes of several scans: their trend, their comparison, and their deletion."""

from __future__ import annotations

from accessible_tree import text_of, unless_gone
from endtoend_case import CHOOSE, SCAN, EndToEndCase, main
from program import Program
from waiting import until

NOTHING_RECORDED = (
    "Scans are recorded locally as you run them. Run one scan, then another, and the trend appears "
    "here."
)


class HistoryTest(EndToEndCase):
    """A window tall enough to show each whole page."""

    display_height = 3000

    def open_tall(self) -> Program:
        program = self.open()
        program.window.resize(1180, self.display_height - 100)
        return program

    def scan(self, program: Program, folder: bytes, tokens: int) -> None:
        """One whole scan of a folder whose session uses this many tokens."""
        count = len(self.home.scans())
        self.home.play("transcript", input=0, cache_creation=tokens, cache_read=0)
        self.choose(program, folder)
        program.window.press(SCAN)
        until("the recorded scan", lambda: len(self.home.scans()) > count)
        program.window.wait_for("Scan complete")

    def show(self, program: Program, page: str) -> None:
        """Opens a page from the sidebar."""
        program.window.press(page)

    def words_beside(self, program: Program, title: str) -> list[str]:
        """The texts that follow a title on the page."""
        program.window.wait_for(title)
        texts = program.window.texts()
        return texts[texts.index(title) + 1 :]

    def words_of_first_row(self, program: Program, listing: str) -> list[str]:
        """All texts of the first row of a list, once it has one."""

        def look() -> list[str]:
            rows = program.window.find(listing, "list")
            row = rows.get_child_at_index(0) if rows else None
            if row is None:
                return []
            return [text_of(row.get_child_at_index(at)) for at in range(row.get_child_count())]

        return until(f"the first row of {listing!r}", lambda: unless_gone(look, []))

    def test_typing_finds_a_scanned_repository(self) -> None:
        program = self.open_tall()
        self.scan(program, self.home.make_repository("webshop"), 31_000)
        self.scan(program, self.home.make_repository("notes"), 2_000)
        program.window.press("Scanned repositories")
        program.window.wait_until_focused("Name or path of a repository")
        program.window.type("SHO")
        program.window.wait_until_gone("notes, 2,000 tokens, Lean")
        program.window.key("Down")
        program.window.wait_until_focused("webshop, 31,000 tokens, Heavy")
        program.window.key("Return")
        program.window.wait_for("Ready to scan")

    def test_two_scans_have_a_drift(self) -> None:
        program = self.open_tall()
        webshop = self.home.make_repository("webshop")
        self.scan(program, webshop, 31_000)
        self.scan(program, webshop, 28_500)
        self.show(program, "Trends")
        words = self.words_beside(program, "Drift across recorded scans")
        self.assertEqual(words[:2], ["-2,500", "2 recorded scans"])
        program.window.wait_for(
            "2 scans across 1 repository, stored on this Mac. Totals only — no instruction-file "
            "contents are ever written. The newest 200 are kept."
        )

    def test_the_heavier_repository_leads(self) -> None:
        program = self.open_tall()
        self.scan(program, self.home.make_repository("webshop"), 31_000)
        self.show(program, "Compare")
        program.window.wait_for("Only one repository recorded")
        self.scan(program, self.home.make_repository("warehouse"), 61_000)
        self.show(program, "Compare")
        words = self.words_of_first_row(program, "Leaderboard")
        self.assertEqual(words[0], "1")
        for expected in ("warehouse", "1 scan", "61,000", "Excessive", "First scan"):
            self.assertIn(expected, words)
        row = "1. warehouse, 1 scan, 61,000 tokens, Excessive, First scan"
        program.window.wait_for(row, "list item")

    def test_cleared_scans_are_gone(self) -> None:
        program = self.open_tall()
        self.scan(program, self.home.make_repository("webshop"), 31_000)
        self.scan(program, self.home.make_repository("warehouse"), 61_000)
        self.show(program, "Trends")
        program.window.press("Clear Recorded Data…")
        program.window.press("Cancel")
        program.window.wait_until_gone("Delete every recorded scan?")
        self.assertEqual(len(self.home.scans()), 2)
        program.window.press("Clear Recorded Data…")
        program.window.wait_for("Delete every recorded scan?")
        program.window.press("Delete 2 Recorded Scans")
        program.window.wait_for(NOTHING_RECORDED)
        self.assertFalse(self.home.history_file.exists())
        self.assertFalse(program.window.is_enabled("Clear Recorded Data…"))
        self.show(program, "Compare")
        program.window.wait_for("No recorded scans yet")

    def test_the_report_on_screen_outlives_the_record(self) -> None:
        program = self.open_tall()
        self.scan(program, self.home.make_repository("webshop"), 31_000)
        self.show(program, "Trends")
        program.window.press("Clear Recorded Data…")
        program.window.press("Delete 1 Recorded Scan")
        program.window.wait_for(NOTHING_RECORDED)
        self.show(program, "Overview")
        program.window.wait_for("31,000")
        self.assertTrue(program.window.is_enabled(CHOOSE))


if __name__ == "__main__":
    main()
