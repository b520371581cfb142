"""The window in other languages: its mirroring, its texts and its formats."""

from __future__ import annotations

from typing import Any, Optional

from accessible_tree import Atspi
from endtoend_case import CHOOSE, SCAN, EndToEndCase, main
from program import Program

NOTHING_CHOSEN = "No repository selected"


def extents_of(item: Any) -> Any:
    """Where the object is on the screen."""
    return Atspi.Component.get_extents(item, Atspi.CoordType.SCREEN)


class LanguagesTest(EndToEndCase):
    """Programs that find another language in their environment."""

    _program: Optional[Program] = None

    def open_in(self, language: str, *options: str) -> Program:
        """Opens the window in that language instead of the one before, over the same data."""
        if self._program:
            self._program.kill()
        program = self.start(*options, environment={"LC_ALL": f"{language}.UTF-8"})
        self._program = program
        program.window.wait_for(CHOOSE, "button")
        return program

    def start_of_words(self, program: Program) -> int:
        """How far from the window's left edge the sidebar's first words may begin."""
        words = extents_of(program.window.wait_for(NOTHING_CHOSEN, "label"))
        return int(words.x - extents_of(program.window.wait_for("Loadwick", "frame")).x)

    def test_the_window_follows_the_direction_of_writing(self) -> None:
        english = self.start_of_words(self.open_in("en_US"))
        self.assertLess(self.start_of_words(self.open_in("ar_EG")), english)
        self.assertLess(self.start_of_words(self.open_in("en_US", "-reverse")), english)

    def test_the_two_commands_stay_at_the_top_right(self) -> None:
        for language in ("en_US", "ar_EG"):
            with self.subTest(language):
                window = self.open_in(language).window
                frame = extents_of(window.wait_for("Loadwick", "frame"))
                choose = extents_of(window.wait_for(CHOOSE, "button"))
                scan = extents_of(window.wait_for("Scan", "button"))
                self.assertLess(choose.x, scan.x)
                self.assertLess(frame.x + frame.width - (scan.x + scan.width), 40)
                self.assertLess(scan.y - frame.y, 40)

    def test_figures_are_written_as_the_language_writes_them(self) -> None:
        repository = self.home.make_repository("webshop")
        for language, total in (("de_DE", "42.318"), ("hi_IN", "42,318"), ("ar_EG", "٤٢٬٣١٨")):
            with self.subTest(language):
                program = self.open_in(language)
                self.choose(program, repository)
                program.window.press(SCAN)
                program.window.wait_for("Scan complete")
                program.window.wait_for(total)


if __name__ == "__main__":
    main()
