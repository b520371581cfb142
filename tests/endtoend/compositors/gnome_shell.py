"""GNOME Shell, which is mutter with GNOME's panel and notices, without a screen."""

from __future__ import annotations

import json
import os
from pathlib import Path
from typing import Any

from gi.repository import GLib

from bus import ask
from compositors.compositor import Compositor
from notice_services import NoticeService
from waiting import until

SHELL = "org.gnome.Shell"
DISPLAYS = "org.gnome.Mutter.DisplayConfig"
ANY_SCALE = "[org/gnome/mutter]\nexperimental-features=['scale-monitor-framebuffer']\n"
MAIN = "imports.ui.main"
WINDOWS = "global.display.get_tab_list(imports.gi.Meta.TabList.NORMAL_ALL, null)"
TRAY = f"{MAIN}.messageTray"
NOTICES = (
    f"{TRAY}.getSources().filter(source => source.app)"
    ".flatMap(source => source.notifications)"
)
DEVICES = """
const {Clutter} = imports.gi;
const seat = Clutter.get_default_backend().get_default_seat();
const {KEYBOARD_DEVICE, POINTER_DEVICE} = Clutter.InputDeviceType;
global.keyboard = seat.create_virtual_device(KEYBOARD_DEVICE);
global.pointer = seat.create_virtual_device(POINTER_DEVICE);
0
"""
NOW = "imports.gi.GLib.get_monotonic_time()"
STATES = [f"imports.gi.Clutter.KeyState.{state}" for state in ("PRESSED", "RELEASED")]


class GnomeShell(Compositor):
    """A running shell, which is told what to do in its own language."""

    executable = "gnome-shell"
    desktop = "GNOME"
    leaves_title_bars = True
    _step = 1  # of the pointer, to and fro

    def command(self) -> list[str]:
        size = "{}x{}".format(*self.pixels)
        return ["gnome-shell", "--wayland", "--headless", "--unsafe-mode", "--virtual-monitor", size]

    def settings(self) -> dict[str, str]:
        # It asks the system's bus for services that it can do without.
        return {
            "GSETTINGS_BACKEND": "keyfile",
            "DBUS_SYSTEM_BUS_ADDRESS": os.environ["DBUS_SESSION_BUS_ADDRESS"],
        }

    def set_up(self) -> None:
        until("GNOME Shell's start", self._has_started)
        self.run(f"{MAIN}.overview.hide()")
        until("the end of the overview", lambda: not self.run(f"{MAIN}.overview.visible"))
        self.run(DEVICES)
        if self.scale != 1:
            self._set_scale()

    def _start(self) -> None:
        folder = self.home / ".config" / "glib-2.0" / "settings"
        folder.mkdir(parents=True)
        (folder / "keyfile").write_text(ANY_SCALE, encoding="utf-8")
        super()._start()

    def _set_scale(self) -> None:
        """Takes the offered scale that is nearest."""
        path = f"/{DISPLAYS.replace('.', '/')}"
        serial, [(names, modes, _)], _, _ = ask(DISPLAYS, path, f"{DISPLAYS}.GetCurrentState")
        name, _, _, _, _, scales, _ = modes[0]
        scale = min(scales, key=lambda offered: abs(offered - self.scale))
        screen = f"(0, 0, {scale:.16f}, uint32 0, true, [('{names[0]}', '{name}', @a{{sv}} {{}})])"
        configuration = f"(uint32 {serial}, uint32 1, [{screen}], @a{{sv}} {{}})"
        ask(DISPLAYS, path, f"{DISPLAYS}.ApplyMonitorsConfig", configuration)

    def _has_started(self) -> bool:
        try:
            return not self.run(f"{MAIN}.layoutManager._startingUp")
        except GLib.Error:  # its name is on the bus before its objects are
            return False

    def run(self, script: str) -> Any:
        """The result of a script in the shell."""
        is_done, answer = ask(SHELL, "/org/gnome/Shell", f"{SHELL}.Eval", f"({json.dumps(script)},)")
        if not is_done:
            raise AssertionError(f"GNOME Shell refuses {script}: {answer}")
        return json.loads(answer) if answer else None

    def active(self) -> str:
        return str(self.run("global.display.focus_window?.get_wm_class() ?? ''"))

    def titles(self) -> list[str]:
        return list(self.run(f"{WINDOWS}.map(window => window.title)"))

    def identities(self) -> list[str]:
        return list(self.run(f"{WINDOWS}.map(window => window.get_wm_class())"))

    def activate(self, identity: str) -> None:
        window = f"{WINDOWS}.find(window => window.get_wm_class() === '{identity}')"
        self.run(f"{MAIN}.activateWindow({window})")

    def press_return(self) -> None:
        for state in STATES:
            self.run(f"global.keyboard.notify_keyval({NOW}, imports.gi.Clutter.KEY_Return, {state})")

    def click(self, x: int, y: int) -> None:
        self.run(f"global.pointer.notify_absolute_motion({NOW}, {x}, {y})")
        for state in STATES:
            self.run(f"global.pointer.notify_button({NOW}, 1, {state})")

    def show_life(self) -> None:
        """Moves the pointer a bit. Until somebody is there, a notice stays and others wait."""
        self._step = -self._step
        self.run(f"global.pointer.notify_relative_motion({NOW}, {self._step}, 0)")

    def picture(self, file: Path) -> None:
        service = f"{SHELL}.Screenshot"
        arguments = f"(false, false, '{file}')"
        ask(service, "/org/gnome/Shell/Screenshot", f"{service}.Screenshot", arguments)


class GnomeNotices(NoticeService):
    """The notices of GNOME Shell itself, which takes them from a program of its own."""

    service = f"{SHELL}.Notifications"
    command = ["gjs", f"/usr/share/gnome-shell/{service}"]

    def titles(self) -> list[str]:
        """The titles of the notices that are shown or kept in the list, without the shell's own."""
        return list(self._compositor.run(f"{NOTICES}.map(notice => notice.title)"))

    def press(self) -> None:
        """Clicks on the notice."""
        shown = f"({TRAY}._notification?.source.app && {TRAY}._banner?.get_transformed_extents())"
        is_moving = f"{TRAY}._bannerBin.get_transition('y')"

        def is_pressed() -> bool:
            if self._compositor.run(f"Boolean({shown}) && !{is_moving}"):
                place = f"[{shown}.get_center().x, {shown}.get_center().y]"
                x, y = self._compositor.run(place)
                self._compositor.click(round(x), round(y))
            else:
                self._compositor.show_life()
            return not self.titles()

        until("the notice to be pressed", is_pressed)
