"""KWin on a virtual screen."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

from gi.repository import Gio, GLib

from bus import ask
from compositors.compositor import SCREEN, Compositor
from compositors.wayland_client import WaylandClient
from waiting import LIMIT_SECONDS, until

KWIN = "org.kde.KWin"
MARK = "loadwick-answer:"
WINDOWS = "workspace.clientList().filter(window => window.normalWindow || window.dialog)"

# Requests of the interface for made-up input.
AUTHENTICATE, BUTTON, MOVE_TO, KEY = 0, 2, 9, 10
RETURN = 28
LEFT_BUTTON = 0x110
DOWN_AND_UP = (1, 0)
FIXED_POINT = 256


class KWin(Compositor):
    """A running KWin, which is told what to do by scripts of its own."""

    executable = "kwin_wayland"
    desktop = "KDE"

    def command(self) -> list[str]:
        # A copy has no file capabilities, which a container may not grant.
        copy = self.sockets / self.executable
        shutil.copyfile(str(shutil.which(self.executable)), copy)
        copy.chmod(0o755)
        width, height = (str(size) for size in SCREEN)
        options = ["--width", width, "--height", height, "--no-lockscreen", "--no-global-shortcuts"]
        return [str(copy), "--virtual", "--scale", f"{self.scale:g}", *options]

    def settings(self) -> dict[str, str]:
        return {
            "KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1",
            "KWIN_WAYLAND_NO_PERMISSION_CHECKS": "1",
            "QT_LOGGING_RULES": "kwin_scripting.debug=true;js.debug=true",
            "QT_FORCE_STDERR_LOGGING": "1",
        }

    def set_up(self) -> None:
        until("KWin's start", self._has_started)
        self._input = WaylandClient(self.display)
        self._devices = self._input.bind("org_kde_kwin_fake_input", 4)
        self._input.request(self._devices, AUTHENTICATE, "Loadwick's tests", "to press keys")
        self._input.wait()

    def _has_started(self) -> bool:
        try:
            return bool(self._run("true"))
        except GLib.Error:  # its name is on the bus before its objects are
            return False

    def _run(self, expression: str) -> object:
        """The value of a JavaScript expression in KWin."""
        before = self.words().count(MARK)
        with tempfile.NamedTemporaryFile("w", dir=self.home, suffix=".js") as script:
            script.write(f"print('{MARK}' + JSON.stringify({expression}));")
            script.flush()
            load = "org.kde.kwin.Scripting.loadScript"
            path = "/{}".format(*ask(KWIN, "/Scripting", load, f"('{script.name}',)"))
            ask(KWIN, path, "org.kde.kwin.Script.run")
            until("KWin's answer", lambda: self.words().count(MARK) > before)
            ask(KWIN, path, "org.kde.kwin.Script.stop")
        return json.loads(self.words().rpartition(MARK)[2].splitlines()[0])

    def active(self) -> str:
        window = "workspace.activeClient"
        return str(self._run(f"{window} ? {window}.desktopFileName : ''"))

    def identities(self) -> list[str]:
        return list(self._run(f"{WINDOWS}.map(window => window.desktopFileName)"))

    def titles(self) -> list[str]:
        return list(self._run(f"{WINDOWS}.map(window => window.caption)"))

    def activate(self, identity: str) -> None:
        window = f"{WINDOWS}.find(window => window.desktopFileName === '{identity}')"
        self._run(f"[workspace.activeClient = {window}].length")

    def press_return(self) -> None:
        for state in DOWN_AND_UP:
            self._input.request(self._devices, KEY, RETURN, state)
        self._input.wait()

    def click(self, x: int, y: int) -> None:
        self._input.request(self._devices, MOVE_TO, x * FIXED_POINT, y * FIXED_POINT)
        for state in DOWN_AND_UP:
            self._input.request(self._devices, BUTTON, LEFT_BUTTON, state)
        self._input.wait()

    def picture(self, file: Path) -> None:
        reader, writer = os.pipe()
        with os.fdopen(reader, "rb") as pixels:
            with os.fdopen(writer, "wb") as end:
                size = self._take(end.fileno())
            command = ["convert", "-size", "{}x{}".format(*size), "-depth", "8", "bgra:-"]
            command += ["-alpha", "off", "-define", "png:exclude-chunk=date,time", os.fspath(file)]
            subprocess.run(command, stdin=pixels, check=True, timeout=LIMIT_SECONDS)

    def _take(self, descriptor: int) -> tuple[int, int]:
        """Makes KWin write the screen's pixels to the descriptor; returns their columns and rows."""
        bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        service = f"{KWIN}.ScreenShot2"
        answer, _ = bus.call_with_unix_fd_list_sync(
            KWIN,
            "/org/kde/KWin/ScreenShot2",
            service,
            "CaptureActiveScreen",
            GLib.Variant("(a{sv}h)", ({"native-resolution": GLib.Variant("b", True)}, 0)),
            None,
            Gio.DBusCallFlags.NONE,
            int(LIMIT_SECONDS * 1000),
            Gio.UnixFDList.new_from_array([os.dup(descriptor)]),  # closed with the list
            None,
        )
        [results] = answer.unpack()
        return results["width"], results["height"]
