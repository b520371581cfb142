"""Starting and ending a program under test."""

from __future__ import annotations

import os
import signal
import subprocess
import time
from pathlib import Path
from typing import Optional

from accessible_tree import AccessibleTree
from processes import end_with_parent
from waiting import LIMIT_SECONDS, WaitFailed

KEY_SECONDS = 10.0  # until a key that closes the window counts as lost; more than any end takes


class Program:
    """A started program and its window."""

    def __init__(
        self, command: list[str], environment: dict[str, str], log: Optional[Path] = None
    ) -> None:
        with open(log or os.devnull, "ab") as file:
            self.process = subprocess.Popen(
                command,
                env=environment,
                preexec_fn=end_with_parent,
                stderr=file if log else None,
            )
        try:
            self.window = AccessibleTree(self.process.pid)
        except BaseException:
            self.kill()
            raise

    def kill(self) -> None:
        """Kills the program if it is still running."""
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait(LIMIT_SECONDS)

    def close(self) -> int:
        """Closes the window as the user does; returns the exit status. The key is pressed again if the
        window is still there: a busy window manager drops one now and then."""
        deadline = time.monotonic() + LIMIT_SECONDS
        while time.monotonic() < deadline:
            self.window.key("alt+F4")
            try:
                return self.process.wait(KEY_SECONDS)
            except subprocess.TimeoutExpired:
                continue
        raise WaitFailed("the window does not close")

    def ask_to_end(self) -> float:
        """Sends SIGTERM; returns the seconds until the program has ended."""
        start = time.monotonic()
        self.process.send_signal(signal.SIGTERM)
        self.process.wait(LIMIT_SECONDS)
        return time.monotonic() - start


def environment_for(home: Path) -> dict[str, str]:
    """The environment of a program under test: its own home, fixed locale, accessibility on."""
    dropped = ("XDG_", "QT_", "CLAUDE", "ANTHROPIC", "LC_", "LANG")
    kept = {key: value for key, value in os.environ.items() if not key.startswith(dropped)}
    return kept | {
        "HOME": str(home),
        "XDG_RUNTIME_DIR": str(home / ".runtime"),
        "LC_ALL": "C.UTF-8",
        "TZ": "UTC",
        "QT_QPA_PLATFORM": "xcb",
        "QT_QUICK_BACKEND": "software",
        "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
    }
