"""The demonstration as a whole: its pictures, its window, and that it touches nothing else."""

from __future__ import annotations

import os
import signal
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

from accessible_tree import AccessibleTree
from session import Display
from endtoend_case import CHOOSE, main, programs
from processes import child_of
from program import environment_for
from waiting import until

STATES = ("empty", "chosen", "scanning", "result", "failure")
SCHEMES = ("light", "dark")
SIZES = ((1180, 780), (960, 640))


def size_of(picture: Path) -> tuple[int, int]:
    """Width and height, from a PNG file's header."""
    width, height = struct.unpack(">II", picture.read_bytes()[16:24])
    return int(width), int(height)


class DemonstrationTest(unittest.TestCase):
    """Started by a user with a `claude` of their own in every searched folder."""

    def setUp(self) -> None:
        self.machine = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.temporary = self.machine / "tmp"
        self.pictures = self.machine / "pictures"
        self.temporary.mkdir()
        for folder in ("home/.local/bin", "path"):
            self.make_decoy(self.machine / folder / "claude")
        (self.machine / "home" / ".claude").mkdir()
        (self.machine / "home" / ".runtime").mkdir(mode=0o700)

    def make_decoy(self, path: Path) -> None:
        """A command that leaves a mark when it is started."""
        path.parent.mkdir(parents=True)
        path.write_text(f"#!/bin/sh\necho started >>'{self.machine}/started'\n")
        path.chmod(0o755)

    def environment(self) -> dict[str, str]:
        """That user's environment."""
        return environment_for(self.machine / "home") | {
            "PATH": f"{self.machine}/path:{os.environ['PATH']}",
            "CLAUDE_CONFIG_DIR": str(self.machine / "home" / ".claude"),
            "XDG_DATA_HOME": str(self.machine / "home" / "data"),
            "TMPDIR": str(self.temporary),
        }

    def assert_untouched(self) -> None:
        """None of the user's commands was started, no file written, and the throw-away home is gone."""
        self.assertFalse((self.machine / "started").exists())
        self.assertEqual(os.listdir(self.machine / "home" / ".claude"), [])
        self.assertFalse((self.machine / "home" / "data").exists())
        self.assertEqual(os.listdir(self.temporary), [])

    def command(self) -> list[str]:
        """The demonstration, leaving its pictures in a folder of this test."""
        return [str(programs() / "loadwick-stage"), "demo", str(self.pictures)]

    def test_without_a_display_it_leaves_a_picture_of_every_state(self) -> None:
        environment = self.environment()
        environment.pop("DISPLAY", None)
        answer = subprocess.run(
            self.command(), env=environment, capture_output=True, text=True, timeout=120, check=True
        )
        wanted = {
            f"{state}-{scheme}-{width}x{height}.png": (width, height)
            for state in STATES
            for scheme in SCHEMES
            for width, height in SIZES
        }
        self.assertEqual({file.name: size_of(file) for file in self.pictures.iterdir()}, wanted)
        self.assertEqual(len({file.read_bytes() for file in self.pictures.iterdir()}), len(wanted))
        named = {Path(line).name for line in answer.stdout.splitlines()}
        self.assertEqual(named, set(wanted))
        self.assert_untouched()

    def test_with_a_display_it_opens_the_window_and_tidies_up(self) -> None:
        with Display():
            environment = self.environment() | {"DISPLAY": os.environ["DISPLAY"]}
            demo = subprocess.Popen(self.command(), env=environment)
            self.addCleanup(demo.wait, 30)
            self.addCleanup(demo.kill)
            window = until("the demonstration's process", lambda: child_of(demo.pid))
            tree = AccessibleTree(window)
            tree.wait_for(CHOOSE, "button")
            tree.wait_for("Demonstration of Loadwick", "frame")
            demo.send_signal(signal.SIGTERM)
            demo.wait(30)
        self.assert_untouched()


if __name__ == "__main__":
    main()
