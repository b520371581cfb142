"""The Overview as a screen reader finds it and as the keyboard walks it."""

from __future__ import annotations

import json
import os
from pathlib import Path
from typing import Any

from accessible_tree import is_enabled, is_in_window, role_of, text_of
from endtoend_case import SCAN, EndToEndCase, main
from overview_words import (
    BAND, BREAKDOWN, CHARTS, FILES, HEADER, HEADROOM, PAGES, REPORT, ROWS, TAB_ORDER, WEEKLY
)
from program import Program
from waiting import until

CONTROLS = {
    "button", "toggle button", "check box", "combo box", "list", "list item", "slider", "text",
    "entry", "link", "page tab", "image", "scroll bar"
}


class OverviewReadingTest(EndToEndCase):
    """A report whose lists are all short enough to be on the bus whole."""

    display_height = 4000

    def setUp(self) -> None:
        super().setUp()
        self.repository = self.home.make_repository("webshop", "x" * 4000)
        (self.home.path / ".claude").mkdir(exist_ok=True)
        (self.home.path / ".claude" / "CLAUDE.md").write_text("y" * 2400)
        log = self.home.path / "Library" / "Logs" / "token-kpi" / "weekly.jsonl"
        log.parent.mkdir(parents=True)
        log.write_text(json.dumps(self.weekly_line()) + "\n")

    @staticmethod
    def weekly_line() -> dict[str, object]:
        """One week just off its targets."""
        return {
            "median_tokens_per_session": 27510400,
            "tokens_per_pr": 37681169,
            "window": {"start": "2026-02-23", "end": "2026-03-01"},
            "timestamp": "2026-03-02T06:00:00Z",
        }

    def open_report(self) -> Program:
        """The window with a whole report."""
        program = self.open()
        self.choose(program, self.repository)
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        return program

    def open_whole_report(self) -> Program:
        """The same in a window that holds the whole page: on the bus, an object that is scrolled away
        looks like a hidden one."""
        program = self.open_report()
        program.window.resize(1180, self.display_height - 100)
        program.window.wait_for(REPORT[-1])
        return program

    def test_no_text_of_the_page_is_missing(self) -> None:
        texts = self.open_whole_report().window.texts()
        paths = (os.fsdecode(self.repository), os.fsdecode(self.repository) + "/CLAUDE.md",
                 str(self.home.path / ".claude" / "CLAUDE.md"))
        for part in (HEADER, BAND, HEADROOM, BREAKDOWN, FILES, WEEKLY, REPORT, paths):
            for expected in part:
                with self.subTest(expected):
                    self.assertTrue(any(expected in text for text in texts), "\n".join(texts))

    def test_the_session_details_count_the_lines_of_the_answer(self) -> None:
        window = self.open_whole_report().window
        window.press("Session details")
        window.wait_for("6 read as categories, 0 not")

    def test_each_row_of_the_breakdown_is_read_as_one(self) -> None:
        texts = self.open_whole_report().window.texts()
        indices = []
        for row in ROWS:
            with self.subTest(row[0]):
                found = [index for index, text in enumerate(texts) if all(cell in text for cell in row)]
                self.assertEqual(len(found), 1)
                indices += found
        self.assertEqual(indices, sorted(indices))

    def test_no_control_is_without_a_name(self) -> None:
        for item in self.open_whole_report().window.items():
            role = role_of(item)
            if role in CONTROLS:
                with self.subTest(role):
                    self.assertTrue(item.get_name().strip() or text_of(item).strip(), role)

    def test_each_chart_is_one_graphic_with_a_name(self) -> None:
        charts = [item for item in self.open_whole_report().window.items()
                  if role_of(item) in ("image", "graphic")]
        self.assertEqual(len(charts), CHARTS, [chart.get_name() for chart in charts])
        for chart in charts:
            self.assertTrue(chart.get_name())
            self.assertEqual(chart.get_child_count(), 0, chart.get_name())

    def test_the_keyboard_reaches_everything_in_the_order_of_the_page(self) -> None:
        program = self.open_report()
        stops = self.walk(program, "Tab")
        names = [text_of(stop) for stop in stops]
        begin = names.index("Pages") if "Pages" in names else names.index("Overview")
        names, stops = names[begin:] + names[:begin], stops[begin:] + stops[:begin]
        indices = [self.index_of(part, names) for part in TAB_ORDER]
        self.assertEqual(indices, sorted(indices), names)
        program.window.resize(1180, self.display_height - 100)
        program.window.wait_for(REPORT[-1])
        for control in program.window.items():
            role = role_of(control)
            if role == "button" and is_enabled(control) and text_of(control) not in PAGES:
                self.assertIn(text_of(control), names)

    def test_the_keyboard_walks_back_the_same_way(self) -> None:
        program = self.open_report()
        there = [self.path_of(stop) for stop in self.walk(program, "Tab")]
        back = [self.path_of(stop) for stop in self.walk(program, "shift+Tab")]
        self.assertEqual(set(there), set(back))
        begin = there.index(back[0])
        self.assertEqual(back, list(reversed(there[begin + 1:] + there[:begin + 1])))

    def test_a_list_of_two_hundred_rows_is_walked_by_key(self) -> None:
        names = [f"part-{number:03}.md" for number in range(200)]
        folder = Path(os.fsdecode(self.repository))
        (folder / "CLAUDE.md").write_text("".join(f"@{name}\n" for name in names))
        for name in names:
            (folder / name).write_text("Be brief.\n")
        program = self.open_report()
        self.tab_to(program, "/webshop/CLAUDE.md.")
        for number in range(3):
            self.press_to(program, "Down", names[number])
        self.press_to(program, "End", "part-199.md")
        self.press_to(program, "Up", "part-198.md")
        self.press_to(program, "Home", "/webshop/CLAUDE.md.")
        row = ""
        while "part-199.md" not in row:
            program.window.key("Next")
            row = until(f"a row after {row!r}", lambda before=row: self.row_other_than(program, before))

    def row_other_than(self, program: Program, before: str) -> str:
        """The focused row's text, unless it equals the previous row's."""
        stop = program.window.focused()
        text = text_of(stop) if stop and is_in_window(stop) else ""
        return text if text != before else ""

    def tab_to(self, program: Program, part: str) -> None:
        """Presses Tab until a stop has that text."""
        path = ""
        for _ in range(20):
            stop = self.step(program, "Tab", path)
            if part in text_of(stop):
                return
            path = self.path_of(stop)
        self.fail(f"Tab does not lead to {part!r}")

    def press_to(self, program: Program, key: str, part: str) -> None:
        """Presses the key once and expects it to focus an object with that text."""
        program.window.key(key)
        until(f"{part!r} in sight", lambda: self.is_at(program, part))

    def is_at(self, program: Program, part: str) -> bool:
        """Whether an object with that text is focused and in view."""
        stop = program.window.focused()
        return bool(stop and part in text_of(stop) and is_in_window(stop))

    def index_of(self, part: str, names: list[str]) -> int:
        """The index of the first name that contains the part."""
        found = [index for index, name in enumerate(names) if part in name]
        self.assertTrue(found, f"{part!r} is not among {names}")
        return found[0]

    def walk(self, program: Program, key: str) -> list[Any]:
        """The stops that the key reaches, one after the other, until it returns to the first. Each
        stop scrolls into sight."""
        stops: list[Any] = []
        paths: list[str] = []
        while True:
            before = paths[-1] if paths else ""
            stop = self.step(program, key, before)
            path = self.path_of(stop)
            if paths and path == paths[0]:
                return stops
            self.assertNotIn(path, paths, f"the keyboard is trapped at {text_of(stop)!r}")
            until(f"the sight of {text_of(stop)!r}", lambda: is_in_window(stop))
            stops.append(stop)
            paths.append(path)

    def step(self, program: Program, key: str, before: str) -> Any:
        """Presses the key; returns the next stop."""
        program.window.key(key)
        return until(f"another stop after {before!r}", lambda: self.stop_other_than(program, before))

    def stop_other_than(self, program: Program, path: str) -> Any:
        """The focused object, unless it is still the same."""
        stop = program.window.focused()
        return stop if stop and self.path_of(stop) != path else None

    @staticmethod
    def path_of(item: Any) -> str:
        """The indices that lead from the window to an object."""
        indices = []
        while item is not None and role_of(item) != "application":
            indices.append(item.get_index_in_parent())
            item = item.get_parent()
        return "/".join(map(str, reversed(indices)))


if __name__ == "__main__":
    main()
