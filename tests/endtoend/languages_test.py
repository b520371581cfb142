"""The window in other languages: its mirroring, its texts and its formats."""

from __future__ import annotations

from typing import Any, Optional

from accessible_tree import Atspi
from endtoend_case import CHOOSE, SCAN, EndToEndCase, main
from program import Program

NOTHING_CHOSEN = "No repository selected"


def extents_of(item: Any) -> Any:
    """Where the object is in its window, which the window manager may still be moving."""
    return Atspi.Component.get_extents(item, Atspi.CoordType.WINDOW)


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

    def is_sidebar_on_the_left(self, program: Program) -> bool:
        """Whether the sidebar's first words begin in the left half of the window."""
        words = extents_of(program.window.wait_for(NOTHING_CHOSEN, "label"))
        frame = extents_of(program.window.wait_for("Loadwick", "frame"))
        return bool(words.x < frame.x + frame.width / 2)

    def test_the_window_follows_the_direction_of_writing(self) -> None:
        self.assertTrue(self.is_sidebar_on_the_left(self.open_in("en_US")))
        self.assertFalse(self.is_sidebar_on_the_left(self.open_in("ar_EG")))
        self.assertFalse(self.is_sidebar_on_the_left(self.open_in("en_US", "-reverse")))

    def test_the_two_commands_stay_at_the_top_right_of_the_page(self) -> None:
        for language in ("en_US", "ar_EG"):
            with self.subTest(language):
                window = self.open_in(language).window
                frame = extents_of(window.wait_for("Loadwick", "frame"))
                choose = extents_of(window.wait_for(CHOOSE, "button"))
                scan = extents_of(window.wait_for("Scan", "button"))
                self.assertLess(choose.x, scan.x)
                self.assertGreater(choose.x, frame.x + frame.width / 2 - choose.width)
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
