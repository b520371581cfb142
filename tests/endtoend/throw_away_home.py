"""The home folder of one program under test, with the stand-in for `claude` in it."""

from __future__ import annotations

import json
import os
import shutil
import tempfile
from pathlib import Path
from typing import Any

STAND_IN = Path(__file__).resolve().parents[2] / "samples" / "claude"


class ThrowAwayHome:
    """A home in the temporary folder, removed at the end."""

    def __init__(self) -> None:
        self.path = Path(os.path.realpath(tempfile.mkdtemp(prefix="loadwick-endtoend-")))
        (self.path / "throw-away").touch()
        (self.path / ".runtime").mkdir(mode=0o700)
        self._share.mkdir(parents=True)
        self.executable.parent.mkdir(parents=True)
        self.install_stand_in()
        self.play("transcript")
        self.preferences.parent.mkdir(parents=True)
        self.preferences.write_text("[General]\nhasCompletedOnboarding=true\n", encoding="utf-8")

    def __enter__(self) -> "ThrowAwayHome":
        return self

    def __exit__(self, *_: object) -> None:
        shutil.rmtree(os.fsencode(self.path), ignore_errors=True)

    @property
    def _share(self) -> Path:
        return self.path / ".local" / "share" / "loadwick-standin"

    @property
    def executable(self) -> Path:
        """The first path at which the program looks for `claude`."""
        return self.path / ".local" / "bin" / "claude"

    @property
    def history_file(self) -> Path:
        """The file in which the program keeps its recorded scans."""
        return self.path / ".local" / "share" / "Loadwick" / "scan-history.json"

    @property
    def preferences(self) -> Path:
        """The file that says that the walk-through was completed."""
        return self.path / ".config" / "Loadwick" / "preferences.ini"

    @property
    def projects(self) -> Path:
        """Where the stand-in leaves its transcripts."""
        return self.path / ".claude" / "projects"

    def forget_preferences(self) -> None:
        """Makes the next start a first launch."""
        shutil.rmtree(self.preferences.parent.parent)

    def install_stand_in(self) -> None:
        """Installs the stand-in where the ordinary search finds it."""
        shutil.copy(STAND_IN, self.executable)

    def play(self, outcome: str, **settings: object) -> None:
        """Sets the outcome of every session that starts from now on."""
        lines = [f"outcome={outcome}", *(f"{key}={value}" for key, value in settings.items())]
        (self._share / "scenario").write_text("\n".join(lines) + "\n", encoding="utf-8")

    def hold(self) -> None:
        """Keeps sessions from ending until `release`."""
        (self._share / "hold").touch()

    def release(self) -> None:
        """Lets held sessions end."""
        (self._share / "hold").unlink()

    def runs(self) -> list[int]:
        """The process ids of all sessions so far."""
        file = self._share / "runs"
        return [int(line) for line in file.read_text().split()] if file.exists() else []

    def make_repository(self, name: str | bytes, text: str = "Be brief.\n") -> bytes:
        """Creates a folder with an instruction file; returns its path."""
        folder = os.path.join(os.fsencode(self.path), os.fsencode(name))
        os.makedirs(folder)
        with open(os.path.join(folder, b"CLAUDE.md"), "w", encoding="utf-8") as file:
            file.write(text)
        return folder

    def will_choose(self, folder: bytes) -> None:
        """Decides which folder the fake dialog chooses from now on."""
        (self.path / "folder-to-choose").write_bytes(folder)

    def scans(self) -> list[dict[str, Any]]:
        """The recorded scans on the disk, oldest first."""
        if not self.history_file.exists():
            return []
        document = json.loads(self.history_file.read_text(encoding="utf-8"))
        assert document["version"] == 1, document
        return list(document["scans"])
