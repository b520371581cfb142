"""A service of the desktop on the session bus, played by the test."""

from __future__ import annotations

import threading
from typing import Any, Optional

from gi.repository import Gio, GLib

from waiting import until


class BusService:
    """Owns its name on the bus while entered. It answers on a thread of its own."""

    name = ""
    path = ""
    interface = ""  # in D-Bus's XML

    def __init__(self) -> None:
        self._has_name = False

    def answer(self, method: str, arguments: tuple[Any, ...]) -> Optional[GLib.Variant]:
        """The values that a call returns; None for none."""
        raise NotImplementedError

    def __enter__(self) -> Any:
        self._loop = GLib.MainLoop(GLib.MainContext())
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._thread.start()
        until(f"the service {self.name}", lambda: self._has_name)
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
        interface = Gio.DBusNodeInfo.new_for_xml(self.interface).interfaces[0]
        bus.register_object(self.path, interface, self._called, None, None)
        owner = Gio.bus_own_name_on_connection(
            bus, self.name, Gio.BusNameOwnerFlags.NONE, self._named, None
        )
        self._loop.run()
        Gio.bus_unown_name(owner)
        bus.close_sync(None)
        context.pop_thread_default()

    def _named(self, *_: Any) -> None:
        self._has_name = True

    def _called(self, *call: Any) -> None:
        method, arguments, invocation = call[4], call[5].unpack(), call[6]
        invocation.return_value(self.answer(method, arguments))
