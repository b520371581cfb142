"""A scan that ends while nobody looks: the desktop says so, until somebody does."""

from __future__ import annotations

import subprocess

from endtoend_case import SCAN, EndToEndCase, main
from notifications import Notifications
from waiting import LIMIT_SECONDS, until


class NoticeTest(EndToEndCase):
    """The program beside a desktop that can show notifications."""

    def test_a_scan_that_ends_unseen_is_told_until_it_is_looked_at(self) -> None:
        desktop = self.enterContext(Notifications())
        self.home.hold()
        program = self.open()
        self.choose(program, self.home.make_repository("<b>webshop"))
        program.window.key("ctrl+r")
        self.wait_for_session()
        window = self.xdotool("getactivewindow").strip()
        self.xdotool("windowminimize", "--sync", window)
        program.window.wait_until_inactive()
        self.home.release()
        until("the notification", lambda: desktop.notes)
        self.assertEqual(desktop.notes[0].title, "Scan complete")
        self.assertIn("&lt;b&gt;webshop\nThe total measured", desktop.notes[0].body)
        self.assertEqual(desktop.closed, [])
        self.xdotool("windowmap", window, "windowactivate", window)
        until("its end", lambda: desktop.closed == [1])

    def test_a_scan_that_is_watched_is_not_told(self) -> None:
        desktop = self.enterContext(Notifications())
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        program.window.key("ctrl+r")
        program.window.wait_for("Scan complete")
        self.assertEqual(desktop.notes, [])

    def xdotool(self, *arguments: str) -> str:
        """What xdotool says to these arguments."""
        command = ["xdotool", *arguments]
        return subprocess.run(
            command, check=True, capture_output=True, text=True, timeout=LIMIT_SECONDS
        ).stdout


if __name__ == "__main__":
    main()
