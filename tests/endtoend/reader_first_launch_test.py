"""The introduction, heard through the real screen reader."""

from __future__ import annotations

from endtoend_case import main
from reader_case import ReaderCase


class ReaderFirstLaunchTest(ReaderCase):
    """The four steps of the first launch."""

    def test_every_step_is_heard_with_its_words(self) -> None:
        self.home.forget_preferences()
        program = self.start()
        self.hears(
            "See what Claude Code loads before it reads a single message",
            "Every Claude Code session spends some of its context window on startup files",
            "Next",
        )
        self.press(
            program, "Return", "Step 2 of 4", "Point it at a local git repository",
            "Look for the folder icon in the top-right toolbar.",
        )
        self.press(program, "Return", "Step 3 of 4")
        self.press(
            program, "Return", "Step 4 of 4", "One number matters most",
            "The total token count is measured directly by Claude and is authoritative.",
        )
        self.press(program, "Return", "Choose Repository…")
        self.assertNotIn("Step 4 of 4", self.reader.transcript().rpartition("One number")[2])


if __name__ == "__main__":
    main()
