"""The three pages by key, heard through the real screen reader."""

from __future__ import annotations

from endtoend_case import main
from program import Program
from reader_case import ReaderCase


class ReaderPagesTest(ReaderCase):
    """Everything that a key reaches says what it shows."""

    def test_the_overview_is_heard(self) -> None:
        program = self.open()
        self.scan(program, "webshop")
        self.press(program, "F6", "/webshop")
        self.press(program, "Tab", "42,318 tokens are Heavy", "Excessive over 60,000")
        self.press(program, "Tab", "Why these bands?", "Collapsed")
        self.press(program, "space", "Expanded")
        self.press(program, "space", "Collapsed")
        self.press(program, "Tab", "Donut chart", "Hover a segment", "The arrow keys walk")
        self.press(program, "Right", "system tools, 16,420 tokens, 38.8%", "1 of 8")
        self.press(program, "Left", "1 of 8")
        self.press(program, "End", "8 of 8")
        self.press(program, "Tab", "Estimated breakdown by category", "system tools, 16,420 tokens")
        self.press(program, "Down", "Unattributed, 8,620 tokens, 20.4%")
        self.press(program, "Tab", "Relative size of 1 instruction file", "with the arrow keys")
        self.press(program, "Right", "/webshop/CLAUDE.md", "3 estimated tokens", "1 of 1")
        self.press(program, "Tab", "Repository instructions", "10 bytes on disk")
        self.press(program, "Tab", "Largest instruction files", "/webshop/CLAUDE.md")
        self.press(program, "Tab", "Copy Summary")
        self.press(program, "space", "Copied")
        self.press(program, "Tab", "Session details", "Collapsed")
        self.press(program, "Tab", "Full report", "Collapsed", "factual, copyable summary")

    def test_trends_is_heard(self) -> None:
        program = self.open()
        self.scan(program, "webshop")
        self.scan_again(program)
        self.press(program, "ctrl+2", "Trends")
        self.press(program, "F6", "Startup tokens", "Hover the chart", "The arrow keys walk")
        self.press(program, "Right", "42,318 tokens", "1 of 2")
        self.press(program, "Tab", "Save Data…")
        self.press(program, "Tab", "Save Chart…")
        self.tab_to(program, "Previous runs")
        self.hears("webshop", "42,318 tokens, Heavy")
        self.tab_to(program, "Clear Recorded Data…")

    def test_compare_is_heard(self) -> None:
        program = self.open()
        self.scan(program, "webshop")
        self.scan(program, "wiki")
        self.press(program, "ctrl+3", "Compare")
        self.press(program, "F6", "Leaderboard", "1. webshop, 1 scan, 42,318 tokens, Heavy, First scan")
        self.press(program, "Down", "2. wiki, 1 scan, 42,318 tokens, Heavy, First scan")
        for name in ("webshop", "wiki"):
            self.press(program, "Tab", name)
            self.press(program, "Tab", f"{name}: tokens by category", "system tools: 16,420 tokens")
        self.press(program, "Tab", "Category for category", "system tools")
        self.press(program, "Tab", "How to read this", "Collapsed")
        self.press(program, "space", "Expanded")

    def test_the_sidebar_is_heard_once(self) -> None:
        program = self.open()
        self.press(program, "F6", "Choose Repository…")
        self.press(program, "F6", "Pages", "Overview")
        self.press(program, "Down", "Trends")
        self.press(program, "Down", "Compare")
        self.assertNotIn("Trends page", self.reader.transcript())


if __name__ == "__main__":
    main()
