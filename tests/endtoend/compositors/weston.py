"""weston in a window of an X server, because only there it has a keyboard and a pointer."""

from __future__ import annotations

import os
import re
import subprocess
import unittest
from pathlib import Path

from compositors.compositor import SCREEN, Compositor
from compositors.wayland_client import WaylandClient
from session import Display
from waiting import LIMIT_SECONDS, until

WINDOW = re.compile(r"top-level window '(?P<title>.*)' of (?P<identity>[^,]*),")


class Weston(Compositor):
    """A running weston and its X server."""

    executable = "weston"
    desktop = "weston"
    leaves_title_bars = True

    def command(self) -> list[str]:
        if self.scale != round(self.scale):
            raise unittest.SkipTest("weston's screens have whole scales only")
        width, height = SCREEN
        screen = [f"--scale={self.scale:g}", "--use-pixman", f"--width={width}", f"--height={height}"]
        options = ["--no-config", "--debug", "--idle-time=0", "--socket=wayland-1"]
        return ["weston", "--backend=x11-backend.so", *screen, *options]

    def settings(self) -> dict[str, str]:
        return {"DISPLAY": self.x_display}

    def __enter__(self) -> Weston:
        self._x_server = Display(*reversed(self.pixels))
        self._x_server.__enter__()
        self.x_display = os.environ.pop("DISPLAY")
        super().__enter__()
        return self

    def __exit__(self, *_: object) -> None:
        super().__exit__()
        self._x_server.__exit__()

    def active(self) -> str:
        """The window in front, which has the focus in weston."""
        return next(iter(self.identities()), "")

    def identities(self) -> list[str]:
        return [match["identity"] for match in WINDOW.finditer(self._scene())]

    def titles(self) -> list[str]:
        return [match["title"] for match in WINDOW.finditer(self._scene())]

    def activate(self, identity: str) -> None:
        def is_active() -> bool:
            if self.active() != identity:
                self._press("super+Tab")
            return self.active() == identity

        until(f"the focus on {identity}", is_active)

    def refusal(self) -> str:
        is_possible = "xdg_activation_v1" in WaylandClient(self.display).interfaces()
        return "" if is_possible else "weston has no protocol for a program to raise its window"

    def press_return(self) -> None:
        self._press("Return")

    def _press(self, keys: str) -> None:
        subprocess.run(
            ["xdotool", "key", keys],
            env=os.environ | {"DISPLAY": self.x_display},
            check=True,
            timeout=LIMIT_SECONDS,
        )

    def picture(self, file: Path) -> None:
        subprocess.run(
            ["weston-screenshooter"],
            cwd=self.sockets,
            env=self._client_environment(),
            check=True,
            timeout=LIMIT_SECONDS,
        )
        [picture] = self.sockets.glob("wayland-screenshot-*.png")
        picture.replace(file)

    def _scene(self) -> str:
        return subprocess.run(
            ["weston-debug", "scene-graph"],
            env=self._client_environment(),
            check=True,
            capture_output=True,
            text=True,
            timeout=LIMIT_SECONDS,
        ).stdout

    def _client_environment(self) -> dict[str, str]:
        return os.environ | {"WAYLAND_DISPLAY": self.display}
