"""sway, without a screen and without input devices."""

from __future__ import annotations

import json
import os
import subprocess
from pathlib import Path
from typing import Any, Iterator, Optional

from compositors.compositor import SCREEN, Compositor
from compositors.wlroots_input import WlrootsInput
from waiting import LIMIT_SECONDS, until

NOBODY = 65534


class Sway(Compositor):
    """A running sway with one output."""

    executable = "sway"
    desktop = "sway"

    def command(self) -> list[str]:
        return ["sway", "--debug", "--config", "/dev/null"]

    def settings(self) -> dict[str, str]:
        return {
            "HOME": "/nonexistent",
            "WLR_BACKENDS": "headless",
            "WLR_LIBINPUT_NO_DEVICES": "1",
            "WLR_RENDERER": "pixman",
        }

    def user(self) -> Optional[int]:
        """Nobody, instead of root, as whom sway 1.7 does not start."""
        return NOBODY if os.geteuid() == 0 else None

    def set_up(self) -> None:
        until("sway's control socket", lambda: list(self.sockets.glob("sway-ipc.*")))
        self._message("output * resolution {}x{} scale {}".format(*self.pixels, self.scale))
        # As it comes, sway would only mark the window as urgent.
        self._message("focus_on_window_activation focus")
        self._input = WlrootsInput(self.display)

    def active(self) -> str:
        focused = [window for window in self._windows() if window["focused"]]
        return str(focused[0]["app_id"] or "") if focused else ""

    def identities(self) -> list[str]:
        return [str(window["app_id"]) for window in self._windows()]

    def titles(self) -> list[str]:
        return [str(window["name"]) for window in self._windows()]

    def refusal(self) -> str:
        # sway 1.7 says so of every notice.
        is_refused = "surface doesn't have keyboard focus" in self.words()
        return "sway lets only the window with the focus pass it on" if is_refused else ""

    def activate(self, identity: str) -> None:
        self._message(f"[app_id={identity}] focus")

    def press_return(self) -> None:
        self._input.press_return()

    def click(self, x: int, y: int) -> None:
        self._input.click((x, y), SCREEN)

    def picture(self, file: Path) -> None:
        self._run(["grim", str(file)])

    def _message(self, *words: str) -> Any:
        [socket] = self.sockets.glob("sway-ipc.*")
        return json.loads(self._run(["swaymsg", "-r", "-s", str(socket), *words]))

    def _run(self, command: list[str]) -> str:
        environment = os.environ | {"WAYLAND_DISPLAY": self.display}
        return subprocess.run(
            command,
            env=environment,
            check=True,
            capture_output=True,
            text=True,
            timeout=LIMIT_SECONDS,
        ).stdout

    def _windows(self) -> Iterator[dict[str, Any]]:
        nodes = [self._message("-t", "get_tree")]
        for node in nodes:
            nodes += node["nodes"] + node["floating_nodes"]
            if node.get("pid"):
                yield node
