"""A desktop over a throw-away home: a compositor, a portal and a service for notices."""

from __future__ import annotations

import os
import subprocess
from pathlib import Path
from typing import Optional

from bus import has_owner
from compositors.compositor import Compositor
from notice_services import NoticeService
from processes import end_with_parent
from program import environment_for
from throw_away_home import ThrowAwayHome
from waiting import LIMIT_SECONDS, WaitFailed, until

PORTALS = {
    "org.freedesktop.impl.portal.desktop.gtk": "xdg-desktop-portal-gtk",
    "org.freedesktop.portal.Desktop": "xdg-desktop-portal",
}


class Desktop:
    """Everything around a program's window. It runs while entered."""

    def __init__(self, compositor: Compositor, notices: NoticeService, home: ThrowAwayHome) -> None:
        self.compositor = compositor
        self.notices = notices
        self._home = home
        self._processes: dict[str, subprocess.Popen[bytes]] = {}

    def __enter__(self) -> "Desktop":
        try:
            self.compositor.__enter__()
            self._start(self.notices.service, self.notices.command, self.notices.environment())
            self._start_portals()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_: object) -> None:
        for process in reversed(self._processes.values()):
            process.kill()
            process.wait(LIMIT_SECONDS)
        self.compositor.__exit__()

    def environment(self) -> dict[str, str]:
        """The environment of the desktop's programs."""
        return environment_for(self._home.path) | {
            "QT_QPA_PLATFORM": "wayland",
            "WAYLAND_DISPLAY": self.compositor.display,
            "XDG_CURRENT_DESKTOP": self.compositor.desktop,
            "XDG_SESSION_TYPE": "wayland",
            "GSETTINGS_BACKEND": "keyfile",
            "GDK_BACKEND": "wayland",
        }

    def set_dark(self, is_dark: bool) -> None:
        """Asks programs for dark or for light windows. On KDE, a portal of GTK says the opposite, which
        must not count."""
        if self.compositor.desktop == "KDE":
            ground = "20,20,20" if is_dark else "240,240,240"
            file = self._home.path / ".config" / "kdeglobals"
            file.write_text(f"[Colors:Window]\nBackgroundNormal={ground}\n", encoding="utf-8")
            is_dark = not is_dark
        self.set("color-scheme", "prefer-dark" if is_dark else "prefer-light")

    def set(self, key: str, value: str) -> None:
        """Changes a setting of the interface, as the desktop's own control panel does."""
        subprocess.run(
            ["gsettings", "set", "org.gnome.desktop.interface", key, value],
            env=self.environment(),
            check=True,
            timeout=LIMIT_SECONDS,
        )

    def process_of(self, service: str) -> int:
        """The process id of a service that the desktop started."""
        return self._processes[service].pid

    def _start_portals(self) -> None:
        choice = self._home.path / ".config" / "xdg-desktop-portal" / "portals.conf"
        choice.parent.mkdir()
        choice.write_text("[preferred]\ndefault=gtk\n", encoding="utf-8")
        for service, program in PORTALS.items():
            self._start(service, [os.fspath(Path("/usr/libexec") / program)])

    def _start(
        self, service: str, command: list[str], settings: Optional[dict[str, str]] = None
    ) -> None:
        log = self._home.path / f"{service}.log"
        with open(log, "wb") as file:
            process = subprocess.Popen(
                command,
                env=self.environment() | (settings or {}),
                preexec_fn=end_with_parent,
                stdin=subprocess.DEVNULL,
                stdout=file,
                stderr=file,
            )
        self._processes[service] = process

        def is_ready() -> bool:
            if process.poll() is not None:
                words = log.read_text(encoding="utf-8", errors="replace")
                raise WaitFailed(f"{command[0]} ended before it was ready:\n{words}")
            return has_owner(service)

        until(f"the service of {command[0]}", is_ready)
