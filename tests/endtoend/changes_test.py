"""What a second scan changed, as a screen reader finds and reaches it."""

from __future__ import annotations

import time

from accessible_tree import role_of, unless_gone
from endtoend_case import SCAN, EndToEndCase, main
from program import Program
from waiting import until

ANSWER = (
    "SLAB system tools TOKENS 16,420",
    "SLAB skills TOKENS 1,935",
    "SLAB custom agents TOKENS 1,260",
    "SLAB system prompt TOKENS 3,190",
)
ROWS = [
    "Total, before 42,318, after 36,204, difference -6,114 tokens, "
    "Authoritative · measured by Claude",
    "mcp tools, before 8,240, gone, difference -8,240 tokens",
    "skills, new, after 1,935, difference +1,935 tokens",
    "system prompt, before 3,187, after 3,190, difference +3 tokens",
]


class ChangesTest(EndToEndCase):
    """Two scans of one repository whose sessions report different categories."""

    def scan(self, program: Program) -> None:
        """One whole scan, in a later second than the one before."""
        count = len(self.home.scans())
        second = int(time.time())
        until("the next second", lambda: int(time.time()) > second)
        program.window.press(SCAN)
        until("the recorded scan", lambda: len(self.home.scans()) > count)
        program.window.wait_for("Scan complete")

    def scan_twice(self) -> Program:
        """The window after both scans."""
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        self.scan(program)
        self.home.play(
            "transcript", input=0, cache_creation=36_204, cache_read=0, answer="\\n".join(ANSWER)
        )
        self.scan(program)
        return program

    def names_of(self, program: Program, role: str = "") -> list[str]:
        """The names of all visible objects, of a role if one is given, in tree order."""
        items = [item for item in program.window.items() if role in ("", role_of(item))]
        return [str(unless_gone(item.get_name, "")) for item in items]

    def press_beginning(self, program: Program, start: str) -> None:
        """Presses the button whose name begins like this and ends with a date."""

        def find() -> str:
            names = self.names_of(program)
            return next((name for name in names if name.startswith(start)), "")

        program.window.press(until(f"a button {start!r}", find))

    def test_the_overview_leads_to_every_change(self) -> None:
        program = self.scan_twice()
        self.press_beginning(program, "-6,114 tokens since ")
        program.window.wait_until_focused(ROWS[0])
        rows = self.names_of(program, "list item")
        for row in ROWS:
            self.assertIn(row, rows)
        self.assertFalse([row for row in rows if row.startswith("custom agents, ")])
        self.assertTrue(
            [text for text in program.window.texts() if " categories unchanged, " in text]
        )

    def test_the_keys_walk_the_changes(self) -> None:
        program = self.scan_twice()
        self.press_beginning(program, "-6,114 tokens since ")
        program.window.wait_until_focused(ROWS[0])
        program.window.key("Down")
        program.window.wait_until_focused(ROWS[1])

    def test_a_date_is_chosen_from_the_list(self) -> None:
        program = self.scan_twice()
        self.scan(program)
        self.press_beginning(program, "+0 tokens since ")
        program.window.wait_for(ROWS[0].replace("42,318", "36,204").replace("-6,114", "+0"))
        self.press_beginning(program, "After: ")
        until("the dates", lambda: len(self.names_of(program, "menu item")) == 2)
        program.window.key("Down")
        program.window.key("Return")
        program.window.wait_for(ROWS[0], "list item")


if __name__ == "__main__":
    main()
