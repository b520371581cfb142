"""The real screen reader, Orca, and what it says."""

from __future__ import annotations

import os
import shutil
import subprocess
import tempfile
import time
from pathlib import Path
from typing import Callable, Optional

from processes import end_with_parent, wakes_of
from speech_server import INTERRUPTED, SpeechServer
from waiting import LIMIT_SECONDS, WaitFailed, until

READY = "Screen reader on."
REST_SECONDS = 0.2


def is_installed() -> bool:
    """Whether there is a screen reader to test with."""
    return shutil.which("orca") is not None


class ScreenReader:
    """Orca in a home of its own, on the display and the bus of the environment."""

    def __init__(self) -> None:
        self._home = Path(tempfile.mkdtemp(prefix="loadwick-reader-"))
        socket = self._home / "speech"
        self._speech = SpeechServer(socket)
        self._heard = 0  # characters of the transcript
        self._process = subprocess.Popen(
            ["orca"],
            env=self._environment(socket),
            preexec_fn=end_with_parent,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )

    def __enter__(self) -> "ScreenReader":
        try:
            self.hears(READY)
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_: object) -> None:
        # Asked to end, it may wait for seconds for a program that has gone.
        self._process.kill()
        self._process.wait(LIMIT_SECONDS)
        self._speech.shutdown()
        self._speech.server_close()
        shutil.rmtree(self._home, ignore_errors=True)

    def _environment(self, socket: Path) -> dict[str, str]:
        """Orca refuses to start beside another Orca of the user, which it looks for with pgrep."""
        tools = self._home / "tools"
        tools.mkdir()
        (tools / "pgrep").symlink_to("/bin/false")
        return os.environ | {
            "HOME": str(self._home),
            "PATH": f"{tools}:{os.environ['PATH']}",
            "LC_ALL": "C.UTF-8",
            "SPEECHD_ADDRESS": f"unix_socket:{socket}",
            "GSETTINGS_BACKEND": "memory",
        }

    def transcript(self) -> str:
        """All that was said so far, a message a line."""
        return "\n".join(self._speech.transcript)

    def rests(self) -> None:
        """Waits until it has nothing more to say: it drops what a key finds unsaid."""

        def is_at_rest() -> bool:
            before = wakes_of(self._process.pid)
            time.sleep(REST_SECONDS)
            return wakes_of(self._process.pid) == before

        until("the reader to rest", is_at_rest)

    def answer_to(self, key: str, press: Callable[[], None]) -> str:
        """The first words after a press of the key of that name, which may be spoken too."""
        said = len(self._speech.transcript)
        press()

        def words() -> Optional[str]:
            lines = self._speech.transcript[said:]
            return next((line for line in lines if line not in (INTERRUPTED, key)), None)

        return until(f"words after {key!r}", words)

    def hears(self, *parts: str) -> None:
        """Waits until all parts were said in this order, after those that were awaited before."""
        for part in parts:
            self._heard = until(repr(part), lambda wanted=part: self._end_of(wanted))

    def _end_of(self, part: str) -> Optional[int]:
        if self._process.poll() is not None:
            raise WaitFailed(f"the screen reader ended while waiting for {part!r}")
        start = self.transcript().find(part, self._heard)
        return start + len(part) if start >= 0 else None
