"""A scan that ends unseen: the desktop announces it until the window is seen."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Optional

from gi.repository import GLib

from accessible_tree import xdotool
from bus_service import BusService
from endtoend_case import EndToEndCase, main
from waiting import until

NAME = "org.freedesktop.Notifications"
PATH = "/org/freedesktop/Notifications"
INTERFACE = """<node><interface name="org.freedesktop.Notifications">
<method name="GetServerInformation"><arg type="s" direction="out"/><arg type="s" direction="out"/>
 <arg type="s" direction="out"/><arg type="s" direction="out"/></method>
<method name="GetCapabilities"><arg type="as" direction="out"/></method>
<method name="Notify"><arg type="s"/><arg type="u"/><arg type="s"/><arg type="s"/><arg type="s"/>
 <arg type="as"/><arg type="a{sv}"/><arg type="i"/><arg type="u" direction="out"/></method>
<method name="CloseNotification"><arg type="u"/></method>
</interface></node>"""


@dataclass
class Note:
    """One shown notification."""

    title: str
    body: str


class Notifications(BusService):
    """Records what programs show and withdraw, while entered."""

    name, path, interface = NAME, PATH, INTERFACE

    def __init__(self) -> None:
        super().__init__()
        self.notes: list[Note] = []
        self.closed: list[int] = []

    def answer(self, method: str, arguments: tuple[Any, ...]) -> Optional[GLib.Variant]:
        if method == "GetServerInformation":
            return GLib.Variant("(ssss)", ("test", "none", "1", "1.2"))
        if method == "GetCapabilities":
            return GLib.Variant("(as)", (["body", "body-markup", "actions"],))
        if method == "Notify":
            self.notes.append(Note(title=arguments[3], body=arguments[4]))
            return GLib.Variant("(u)", (len(self.notes),))
        self.closed.append(arguments[0])
        return None


class NoticeTest(EndToEndCase):
    """The program beside a desktop that can show notifications."""

    def test_an_unseen_end_of_a_scan_is_announced_until_the_window_is_seen(self) -> None:
        desktop = self.enterContext(Notifications())
        self.home.hold()
        program = self.open()
        self.choose(program, self.home.make_repository("<b>webshop"))
        program.window.key("ctrl+r")
        self.wait_for_session()
        window = xdotool("getactivewindow").strip()
        xdotool("windowminimize", "--sync", window)
        program.window.wait_until_inactive()
        self.home.release()
        until("the notification", lambda: desktop.notes)
        self.assertEqual(desktop.notes[0].title, "Scan complete")
        self.assertIn("&lt;b&gt;webshop\nThe total measured", desktop.notes[0].body)
        self.assertEqual(desktop.closed, [])
        xdotool("windowmap", window, "windowactivate", window)
        until("its end", lambda: desktop.closed == [1])

    def test_a_watched_scan_is_not_announced(self) -> None:
        desktop = self.enterContext(Notifications())
        program = self.open()
        self.choose(program, self.home.make_repository("webshop"))
        program.window.key("ctrl+r")
        program.window.wait_for("Scan complete")
        self.assertEqual(desktop.notes, [])


if __name__ == "__main__":
    main()
