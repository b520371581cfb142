"""Pictures of the program on a desktop, after a scan, light and dark, at every scale that it has."""

from __future__ import annotations

import os
from pathlib import Path

from desktop_case import DesktopCase
from endtoend_case import SCAN
from waiting import until

SCALES = {"test_at_scale_1": 1.0, "test_at_scale_1_5": 1.5, "test_at_scale_2": 2.0}


class DesktopPictures(DesktopCase):
    """Writes the pictures into the folder that LOADWICK_PICTURES names."""

    def scale(self) -> float:
        return SCALES[self._testMethodName]

    def test_at_scale_1(self) -> None:
        self.take()

    def test_at_scale_1_5(self) -> None:
        self.take()

    def test_at_scale_2(self) -> None:
        self.take()

    def take(self) -> None:
        """Performs a scan and takes the pictures."""
        program = self.open_here()
        self.choose(program, self.home.make_repository("webshop"))
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        for colours, is_dark in (("light", False), ("dark", True)):
            self.desktop.set_dark(is_dark)
            self.wait_until_brightness(is_dark)
            name = f"{os.environ['LOADWICK_DESKTOP']}-{colours}-{self.scale():g}.png"
            self.take_at_rest(Path(os.environ["LOADWICK_PICTURES"]) / name)

    def take_at_rest(self, file: Path) -> None:
        """Takes a picture once nothing moves any more."""
        before = b""

        def is_at_rest() -> bool:
            nonlocal before
            self.desktop.compositor.picture(file)
            last, before = before, file.read_bytes()
            return last == before

        until("a picture at rest", is_at_rest)
