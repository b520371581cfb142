"""A Wayland compositor without a screen, as the display of one program."""

from __future__ import annotations

import os
import shutil
import subprocess
import tempfile
from pathlib import Path
from typing import Optional

from processes import end_with_parent
from waiting import LIMIT_SECONDS, WaitFailed, until

NOBODY = 65534


class Compositor:
    """One running compositor. Its sockets are in a folder of their own."""

    executable = ""

    def __init__(self) -> None:
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
        """What the compositor's environment has besides the session's."""
        return {}

    def user(self) -> Optional[int]:
        """The user that runs the compositor; none: whoever runs the test."""
        return None

    @property
    def display(self) -> str:
        """What a client's WAYLAND_DISPLAY is."""
        return str(self._socket())

    def _socket(self) -> Optional[Path]:
        found = [path for path in self.sockets.glob("wayland-*") if path.is_socket()]
        return found[0] if found else None

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
                env=self.environment(),
                user=user,
                group=user,
                extra_groups=None if user is None else [],
                preexec_fn=end_with_parent,
                stdout=log,
                stderr=log,
            )
        until(f"{self.executable}'s socket", self._is_ready)

    def environment(self) -> dict[str, str]:
        """The compositor's environment."""
        kept = {key: os.environ[key] for key in os.environ if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        return kept | {"XDG_RUNTIME_DIR": str(self.sockets), "LC_ALL": "C.UTF-8"} | self.settings()

    def _is_ready(self) -> bool:
        if self._process is not None and self._process.poll() is not None:
            raise WaitFailed(f"{self.executable} ended: {self.log.read_text(errors='replace')}")
        return self._socket() is not None

    def kill(self) -> None:
        """Kills the compositor if it is still running."""
        if self._process is not None:
            self._process.kill()
            self._process.wait(LIMIT_SECONDS)
