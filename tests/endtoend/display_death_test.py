"""A display that dies during a scan: the program and the session end within one second."""

from __future__ import annotations

import os
import time
import unittest
from typing import Callable

from compositors.sway import Sway
from endtoend_case import SCAN, EndToEndCase, main
from processes import is_running
from waiting import until

LIMIT_SECONDS = 1.0


class DisplayDeathTest(EndToEndCase):
    """The X server and the Wayland compositor, killed."""

    def assert_takes_the_session_along(self, kill_display: Callable[[], None], **display: str) -> None:
        """Starts a scan on the display, kills it and expects program and session to be gone."""
        self.home.play("hang")
        # The leak checker would look for a second after the display's death.
        options = os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
        program = self.start(environment=display | {"ASAN_OPTIONS": options})
        self.choose(program, self.home.make_repository("repository"))
        program.window.press(SCAN)
        session = self.wait_for_watched_session(program)
        start = time.monotonic()
        kill_display()
        program.process.wait(30)
        until("the session's end", lambda: not is_running(session))
        self.assertLess(time.monotonic() - start, LIMIT_SECONDS)
        self.assertEqual(self.home.scans(), [])

    def test_the_death_of_the_x_server_ends_the_session(self) -> None:
        self.assert_takes_the_session_along(self.display.kill_server)

    @unittest.skipUnless(Sway.is_installed(), "sway is not installed")
    def test_the_death_of_the_compositor_ends_the_session(self) -> None:
        sway = self.enterContext(Sway(self.home.path))
        self.assert_takes_the_session_along(
            sway.kill, QT_QPA_PLATFORM="wayland", WAYLAND_DISPLAY=sway.display, DISPLAY=""
        )


if __name__ == "__main__":
    main()
