"""What a scan has a screen reader speak, as it is on the bus."""

from __future__ import annotations

from accessible_tree import AccessibleTree
from endtoend_case import SCAN, EndToEndCase, main


class ScanAnnouncementsTest(EndToEndCase):
    """Notifications that appear while the focus stays where it is."""

    def test_the_course_of_a_scan_is_announced(self) -> None:
        window = self.open_and_choose()
        self.home.hold()
        window.press(SCAN)
        window.wait_for_announcement("Scan started")
        self.home.release()
        window.wait_for_announcement(
            "Scan complete. The total measured by Claude is 42,318 tokens, which falls in the "
            "Heavy band (30,000–60,000)."
        )

    def test_a_failure_is_announced(self) -> None:
        window = self.open_and_choose()
        self.home.play("signed-out")
        window.press(SCAN)
        window.wait_for_announcement("Scan failed. Claude Code is not signed in.")

    def open_and_choose(self) -> AccessibleTree:
        """The window with a repository that has just been chosen."""
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        program.window.wait_for_announcement("Repository webshop chosen")
        return program.window


if __name__ == "__main__":
    main()
