"""A Wayland compositor without a screen."""

from __future__ import annotations

import os
import shutil
import subprocess
import tempfile
from pathlib import Path
from typing import Optional

from processes import end_with_parent
from waiting import LIMIT_SECONDS, WaitFailed, until


SCREEN = (1280, 900)  # what windows have room in


class Compositor:
    """One compositor, with its sockets in a folder of their own. It runs while entered."""

    executable = ""
    desktop = ""  # what XDG_CURRENT_DESKTOP is beside it
    leaves_title_bars = False  # to the programs
    scale = 1.0  # how many of the screen's pixels are one of a window's

    def __init__(self, home: Path) -> None:
        self.home = home
        self.sockets = Path(tempfile.mkdtemp(prefix="loadwick-compositor-"))
        self.log = self.sockets / "log"
        self._process: Optional[subprocess.Popen[bytes]] = None

    @classmethod
    def is_installed(cls) -> bool:
        """Whether this machine has the compositor."""
        return shutil.which(cls.executable) is not None

    def command(self) -> list[str]:
        """What starts the compositor."""
        raise NotImplementedError

    def settings(self) -> dict[str, str]:
        """The compositor's own environment variables."""
        return {}

    def user(self) -> Optional[int]:
        """The user that runs the compositor; none: whoever runs the test."""
        return None

    def set_up(self) -> None:
        """Runs once the compositor accepts clients."""

    @property
    def pixels(self) -> tuple[int, int]:
        """The columns and rows of the screen, which has the same room for windows at any scale."""
        width, height = SCREEN
        return round(width * self.scale), round(height * self.scale)

    @property
    def display(self) -> str:
        """The WAYLAND_DISPLAY of its clients."""
        return str(self._socket())

    def active(self) -> str:
        """The application identity of the window that has the focus; "" for none."""
        raise NotImplementedError

    def identities(self) -> list[str]:
        """The application identity of each window."""
        raise NotImplementedError

    def titles(self) -> list[str]:
        """The title of each window."""
        raise NotImplementedError

    def refusal(self) -> str:
        """Why the compositor has refused to raise a window; "" if it has not."""
        return ""

    def activate(self, identity: str) -> None:
        """Gives the focus to the window of this application, as a task bar does."""
        raise NotImplementedError

    def press_return(self) -> None:
        """Presses the Return key."""
        raise NotImplementedError

    def click(self, x: int, y: int) -> None:
        """Clicks at this point of the screen."""
        raise NotImplementedError

    def picture(self, file: Path) -> None:
        """Writes what the screen would show to a PNG file."""
        raise NotImplementedError

    def __enter__(self) -> "Compositor":
        try:
            self._start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_: object) -> None:
        self.kill()
        shutil.rmtree(self.sockets, ignore_errors=True)

    def _start(self) -> None:
        user = self.user()
        if user is not None:
            os.chown(self.sockets, user, user)
        with open(self.log, "wb") as log:
            self._process = subprocess.Popen(
                self.command(),
                env=self._environment(),
                user=user,
                group=user,
                extra_groups=None if user is None else [],
                preexec_fn=end_with_parent,
                stdin=subprocess.DEVNULL,
                stdout=log,
                stderr=log,
            )
        until(f"{self.executable}'s socket", self._is_ready)
        self.set_up()

    def _environment(self) -> dict[str, str]:
        dropped = ("DISPLAY", "WAYLAND_DISPLAY")
        kept = {key: value for key, value in os.environ.items() if key not in dropped}
        folders = {"HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.sockets)}
        names = {"XDG_CURRENT_DESKTOP": self.desktop, "LC_ALL": "C.UTF-8"}
        return kept | folders | names | self.settings()

    def _socket(self) -> Optional[Path]:
        found = [path for path in self.sockets.glob("wayland-*") if path.is_socket()]
        return found[0] if found else None

    def _is_ready(self) -> bool:
        if self._process is not None and self._process.poll() is not None:
            raise WaitFailed(f"{self.executable} ended before it was ready:\n{self.words()}")
        return self._socket() is not None

    def words(self) -> str:
        """What the compositor has said so far."""
        return self.log.read_text(encoding="utf-8", errors="replace")

    def kill(self) -> None:
        """Kills the compositor if it is still running."""
        if self._process is not None:
            self._process.kill()
            self._process.wait(LIMIT_SECONDS)
