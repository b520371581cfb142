"""Questions to services on the session bus."""

from __future__ import annotations

from typing import Any

from gi.repository import Gio, GLib

from waiting import LIMIT_SECONDS


def ask(service: str, path: str, method: str, arguments: str = "()") -> Any:
    """Calls a method by its interface and name and returns its answers. The arguments are a tuple
    in GLib's text format."""
    interface, _, name = method.rpartition(".")
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    values = GLib.Variant.parse(None, arguments, None, None)
    limit = int(LIMIT_SECONDS * 1000)
    return bus.call_sync(
        service, path, interface, name, values, None, Gio.DBusCallFlags.NONE, limit, None
    ).unpack()


def has_owner(service: str) -> bool:
    """Whether a program answers to this name."""
    question = f"('{service}',)"
    bus = "org.freedesktop.DBus"
    return bool(ask(bus, "/org/freedesktop/DBus", f"{bus}.NameHasOwner", question)[0])
