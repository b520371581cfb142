"""The desktop's settings, played by the test."""

from __future__ import annotations

import random
from typing import Any

from gi.repository import Gio, GLib

from bus_service import BusService

COMMON = "org.freedesktop.appearance"
GNOME = "org.gnome.desktop.interface"
SETTINGS = """<node><interface name="org.freedesktop.portal.Settings">
<method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="v" direction="out"/></method>
<signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""
# Values that a desktop sets, and some that none should.
VALUES = {
    (COMMON, "color-scheme"): ("uint32 0", "uint32 1", "uint32 2", "uint32 9", "'dark'"),
    (COMMON, "contrast"): ("uint32 0", "uint32 1", "true"),
    (COMMON, "reduced-motion"): ("uint32 0", "uint32 1"),
    (COMMON, "accent-color"): ("(0.2, 0.5, 0.9)", "(1.0, 1.0, 1.0)", "(2.0, -1.0, 0.0)", "(0.1,)"),
    (GNOME, "text-scaling-factor"): ("0.5", "1.0", "2.0", "0.0", "1e9"),
    (GNOME, "font-name"): ("'Cantarell 11'", "'Sans'", "'Sans 4000'"),
    (GNOME, "enable-animations"): ("true", "false"),
}


class SettingsPortal(BusService):
    """Answers with the values last set and announces each change."""

    name = "org.freedesktop.portal.Desktop"
    path = "/org/freedesktop/portal/desktop"
    interface = SETTINGS

    def __init__(self) -> None:
        super().__init__()
        self._set = {key: values[0] for key, values in VALUES.items()}

    def answer(self, method: str, arguments: tuple[Any, ...]) -> GLib.Variant:
        value = GLib.Variant.parse(None, self._set.get(tuple(arguments), "''"), None, None)
        return GLib.Variant("(v)", (GLib.Variant("v", value),))

    def change(self, chance: random.Random) -> str:
        """Sets something; returns what."""
        key = chance.choice(list(VALUES))
        self._set[key] = chance.choice(VALUES[key])
        value = GLib.Variant.parse(None, self._set[key], None, None)
        bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        signal = GLib.Variant("(ssv)", (*key, value))
        bus.emit_signal(None, self.path, "org.freedesktop.portal.Settings", "SettingChanged", signal)
        return f"{key[1]} {self._set[key]}"
