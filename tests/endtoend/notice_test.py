"""A scan that ends unseen: the desktop announces it until the window is seen."""

from __future__ import annotations

import threading
from dataclasses import dataclass
from typing import Any

from gi.repository import Gio, GLib

from accessible_tree import xdotool
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


class Notifications:
    """Records what programs show and withdraw, while entered."""

    def __init__(self) -> None:
        self.notes: list[Note] = []
        self.closed: list[int] = []
        self._has_name = False

    def __enter__(self) -> "Notifications":
        self._loop = GLib.MainLoop(GLib.MainContext())
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._thread.start()
        until("the notification service", lambda: self._has_name)
        return self

    def __exit__(self, *_: object) -> None:
        self._loop.quit()
        self._thread.join()

    def _serve(self) -> None:
        context = self._loop.get_context()
        context.push_thread_default()
        flags = (
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        )
        address = Gio.dbus_address_get_for_bus_sync(Gio.BusType.SESSION, None)
        bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        bus.register_object(PATH, interface, self._answer, None, None)
        owner = Gio.bus_own_name_on_connection(
            bus, NAME, Gio.BusNameOwnerFlags.NONE, self._named, None
        )
        self._loop.run()
        Gio.bus_unown_name(owner)
        bus.close_sync(None)
        context.pop_thread_default()

    def _named(self, *_: Any) -> None:
        self._has_name = True

    def _answer(self, *call: Any) -> None:
        method, arguments, invocation = call[4], call[5].unpack(), call[6]
        if method == "GetServerInformation":
            answer = GLib.Variant("(ssss)", ("test", "none", "1", "1.2"))
        elif method == "GetCapabilities":
            answer = GLib.Variant("(as)", (["body", "body-markup", "actions"],))
        elif method == "Notify":
            self.notes.append(Note(title=arguments[3], body=arguments[4]))
            answer = GLib.Variant("(u)", (len(self.notes),))
        else:
            self.closed.append(arguments[0])
            answer = None
        invocation.return_value(answer)


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
