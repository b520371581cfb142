"""Folders with hostile names: chosen, scanned and recorded without harm."""

from __future__ import annotations

import os

from endtoend_case import SCAN, EndToEndCase, main


class FolderNamesTest(EndToEndCase):
    """Legal folder names that the window must survive."""

    def assert_scanned(self, name: bytes, shown: str) -> None:
        """Scans a folder of this name and expects it, as text, on the screen and on the disk."""
        program = self.open()
        folder = self.home.make_repository(name)
        self.choose(program, folder)
        program.window.wait_for(shown)
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        program.window.wait_for(shown)
        [scan] = self.home.scans()
        self.assertEqual(scan["repositoryName"], shown)
        self.assertEqual(scan["repositoryPath"], os.path.join(str(self.home.path), shown))
        self.assertIn("Repository instructions", [row["name"] for row in scan["categories"]])
        self.assertEqual(program.close(), 0)

    def test_markup_is_text(self) -> None:
        self.assert_scanned(b"<img src=x>", "<img src=x>")

    def test_a_line_feed_is_part_of_the_name(self) -> None:
        self.assert_scanned(b"two\nlines", "two\nlines")

    def test_a_name_that_is_not_utf_8_reaches_every_call(self) -> None:
        self.assert_scanned(b"caf\xe9", "caf\N{REPLACEMENT CHARACTER}")

    def test_a_name_may_be_as_long_as_the_disk_allows(self) -> None:
        self.assert_scanned(b"n" * 255, "n" * 255)


if __name__ == "__main__":
    main()
