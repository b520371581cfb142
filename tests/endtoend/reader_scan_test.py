"""A scan and its failure, heard through the real screen reader."""

from __future__ import annotations

import time

from endtoend_case import main
from reader_case import ReaderCase

SOME_SECONDS = 2.5  # the time on the page, which is not to be spoken, changes twice


class ReaderScanTest(ReaderCase):
    """What the reader says although the focus does not move."""

    def test_a_whole_scan_is_heard(self) -> None:
        program = self.open()
        self.hears("Loadwick")
        self.choose(program, self.repository_with_imports())
        self.hears("Repository webshop chosen")
        self.home.hold()
        self.press(program, "ctrl+r", "Scan started")
        time.sleep(SOME_SECONDS)
        self.home.release()
        self.hears(
            "Scan complete.",
            "The total measured by Claude is 42,318 tokens, which falls in the Heavy band",
        )
        self.assertNotIn("0:0", self.reader.transcript())

    def repository_with_imports(self) -> bytes:
        """A repository whose report has so many rows that they keep the reader busy."""
        names = [f"part-{number:02}.md" for number in range(40)]
        repository = self.home.make_repository("webshop", "".join(f"@{name}\n" for name in names))
        for name in names:
            (self.home.path / "webshop" / name).write_text("Be brief.\n")
        return repository

    def test_a_failure_is_heard_by_its_headline(self) -> None:
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        self.home.play("signed-out")
        self.press(program, "ctrl+r", "Scan started", "Scan failed.", "Claude Code is not signed in.")


if __name__ == "__main__":
    main()
