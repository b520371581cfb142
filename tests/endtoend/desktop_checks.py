"""What the program must do on every desktop."""

from __future__ import annotations

import time

from accessible_tree import AccessibleTree, Atspi
from desktop_case import IDENTITY, DesktopCase
from endtoend_case import CHOOSE, SCAN
from processes import is_running
from waiting import LIMIT_SECONDS, until

FOLDER_TITLE = "Choose a local repository to scan."
FILE_DIALOGS = "org.freedesktop.impl.portal.desktop.gtk"
END_SECONDS = 1.0
LEAST_TITLE_BAR = 20


class DesktopChecks(DesktopCase):
    """The checks, each on a desktop of its own."""

    def test_the_window_belongs_to_the_desktop_entry(self) -> None:
        self.open_here()
        compositor = self.desktop.compositor
        until("the window", lambda: compositor.identities() == [IDENTITY])

    def test_the_colour_scheme_is_followed(self) -> None:
        program = self.open_here()
        for is_dark in (True, False):
            self.wait_until_brightness(not is_dark)
            before = self.picture("before")
            self.desktop.set_dark(is_dark)
            self.wait_until_brightness(is_dark)
            if self.compositor_type.leaves_title_bars:
                least = program.window.height() + LEAST_TITLE_BAR
                until("the title bar's colour", lambda: self.changed_rows(before) >= least)

    def test_an_unseen_end_of_a_scan_is_announced_until_the_window_is_seen(self) -> None:
        self.finish_unseen_scan(self.open_here())
        self.assertEqual([scan["repositoryName"] for scan in self.home.scans()], ["webshop"])
        self.desktop.compositor.activate(IDENTITY)
        until("the notice's end", lambda: self.desktop.notices.titles() == [])

    def test_the_next_scan_withdraws_the_notice(self) -> None:
        program = self.open_here()
        self.finish_unseen_scan(program)
        self.home.hold()
        program.window.press(SCAN)
        until("the notice's end", lambda: self.desktop.notices.titles() == [])

    def test_a_click_on_the_notice_raises_the_window(self) -> None:
        self.finish_unseen_scan(self.open_here())
        self.desktop.notices.press()
        self.wait_until_raised()

    def test_a_second_start_raises_the_window_with_an_activation_token(self) -> None:
        self.assert_second_start_raises("XDG_ACTIVATION_TOKEN")

    def test_a_second_start_raises_the_window_with_a_startup_id(self) -> None:
        self.assert_second_start_raises("DESKTOP_STARTUP_ID")

    def test_the_portals_folder_dialog_comes(self) -> None:
        program = self.open_here("--platform-dialog", QT_QPA_PLATFORMTHEME="xdgdesktopportal")
        program.window.press(CHOOSE)
        dialog = AccessibleTree(self.desktop.process_of(FILE_DIALOGS))
        dialog.wait_for(FOLDER_TITLE)
        Atspi.Action.do_action(dialog.wait_for("Cancel"), 0)
        dialog.wait_until_gone(FOLDER_TITLE)
        self.assertTrue(program.window.is_enabled(CHOOSE))

    def test_the_desktops_own_folder_dialog_comes(self) -> None:
        program = self.open_here("--platform-dialog")
        program.window.press(CHOOSE)
        compositor = self.desktop.compositor
        until("the dialog", lambda: any(FOLDER_TITLE in title for title in compositor.titles()))
        self.assertLess(program.ask_to_end(), END_SECONDS)

    def test_the_displays_death_ends_program_and_session(self) -> None:
        self.home.play("hang")
        program = self.open_here()
        self.choose(program, self.home.make_repository("webshop"))
        program.window.press(SCAN)
        session = self.wait_for_watched_session(program)
        start = time.monotonic()
        self.desktop.compositor.kill()
        program.process.wait(LIMIT_SECONDS)
        until("the session's end", lambda: not is_running(session))
        self.assertLess(time.monotonic() - start, END_SECONDS)

    def assert_second_start_raises(self, variable: str) -> None:
        """Starts the program again from another window, with that one's token in this variable."""
        self.install_second_start(variable)
        self.open_here()
        self.open_launcher()
        self.desktop.compositor.press_return()
        self.wait_until_raised()
