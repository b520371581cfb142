"""What the program does on a real desktop; one class derives from this for each compositor."""

from __future__ import annotations

import os
import re
import subprocess
import unittest
from pathlib import Path
from typing import Any, Callable

from compositors.compositor import Compositor
from desktop import Desktop
from endtoend_case import CHOOSE, SCAN, EndToEndCase, window_command
from processes import end_with_parent
from program import Program
from waiting import LIMIT_SECONDS, until

IDENTITY = "io.github.loadwick.Loadwick"
LAUNCHER = "launcher"
MIDDLE_GREY = 0.5

ENTRY = """[Desktop Entry]
Type=Application
Name=Loadwick
Exec={command}
StartupNotify=true
"""

SECOND_START = """#!/bin/sh
token=${{XDG_ACTIVATION_TOKEN:-$DESKTOP_STARTUP_ID}}
unset XDG_ACTIVATION_TOKEN DESKTOP_STARTUP_ID
# GTK's theme takes the startup ID out of the environment.
exec env {variable}="$token" QT_QPA_PLATFORMTHEME=gtk3 {command}
"""


class DesktopCase(EndToEndCase):
    """A test on a desktop of its own."""

    compositor_type: type[Compositor]
    notices_type: Callable[[Any], Any]

    @classmethod
    def setUpClass(cls) -> None:
        """Starts no X server."""
        if not cls.compositor_type.is_installed():
            raise unittest.SkipTest(f"{cls.compositor_type.executable} is not installed")

    def setUp(self) -> None:
        super().setUp()
        self.entry = self.install_entry()
        compositor = self.compositor_type(self.home.path)
        compositor.scale = self.scale()
        notices = type(self).notices_type(compositor)
        self.desktop = self.enterContext(Desktop(compositor, notices, self.home))

    def open_here(self, *options: str, **environment: str) -> Program:
        """Opens the window on the desktop; it closes with the test."""
        # The leak checker would look for a second after the display's death.
        checks = {"ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"}
        program = self.start(
            "--follow-desktop", *options, environment=self.desktop.environment() | checks | environment
        )
        program.window.wait_for(CHOOSE, "button")
        return program

    def scale(self) -> float:
        """How many pixels of the screen one of the window is."""
        return 1.0

    def wait_until_brightness(self, is_dark: bool) -> None:
        """Returns once the window is dark, or light."""
        until(
            "a dark window" if is_dark else "a light window",
            lambda: (self.brightness() < MIDDLE_GREY) == is_dark,
        )

    def brightness(self) -> float:
        """That of the middle of the screen, where the window is: 0 is black, 1 is white."""
        crop = ["-gravity", "center", "-crop", "400x300+0+0", "-colorspace", "Gray"]
        return float(self.measure("%[fx:mean]", os.fspath(self.picture("now")), *crop))

    def picture(self, name: str) -> Path:
        """Takes a picture of the screen; returns its file, which has this name."""
        file = self.home.path / f"{name}.png"
        self.desktop.compositor.picture(file)
        return file

    def changed_rows(self, before: Path) -> int:
        """How many rows there are from the first to the last whose brightness is another than in this
        picture, to the left of the middle of the screen, where the window is."""
        difference = [os.fspath(before), os.fspath(self.picture("now"))]
        difference += ["-compose", "difference", "-composite", "-colorspace", "Gray"]
        column = ["-crop", "8x0+320+0", "+repage", "-threshold", "25%"]
        edge = ["-bordercolor", "black", "-border", "1"]
        _, rows, *_ = re.split("[x+-]", self.measure("%@", *difference, *column, *edge))
        return int(rows)

    def measure(self, what: str, *picture: str) -> str:
        """What ImageMagick says of a picture."""
        command = ["convert", *picture, "-format", what, "info:"]
        answer = subprocess.run(
            command, check=True, capture_output=True, text=True, timeout=LIMIT_SECONDS
        )
        return answer.stdout

    def wait_until_raised(self) -> None:
        """Returns once the program's window has the focus; skips the test if the compositor refuses
        that."""
        compositor = self.desktop.compositor

        def is_raised() -> bool:
            if refusal := compositor.refusal():
                self.skipTest(refusal)
            return compositor.active() == IDENTITY

        until("the program's window to be raised", is_raised)

    def wait_until_active(self, identity: str) -> None:
        """Returns once the window of this application has the focus."""
        until(f"the focus on {identity}", lambda: self.desktop.compositor.active() == identity)

    def install_entry(self) -> Path:
        """Writes the desktop entry of the program, which runs a script; returns the entry's file."""
        entry = self.home.path / ".local/share/applications" / f"{IDENTITY}.desktop"
        entry.parent.mkdir()
        entry.write_text(ENTRY.format(command=self.install_second_start("XDG_ACTIVATION_TOKEN")))
        return entry

    def install_second_start(self, variable: str) -> Path:
        """Writes the entry's script, which hands the launcher's token on in this variable."""
        script = self.home.path / "second-start"
        command = " ".join(window_command())
        script.write_text(SECOND_START.format(variable=variable, command=command))
        script.chmod(0o755)
        return script

    def open_launcher(self) -> None:
        """Opens another window, which takes the focus."""
        script = os.fspath(Path(__file__).with_name("launcher.py"))
        launcher = subprocess.Popen(
            ["/usr/bin/python3", script, os.fspath(self.entry)],
            env=self.desktop.environment(),
            preexec_fn=end_with_parent,
        )
        self.addCleanup(launcher.wait, LIMIT_SECONDS)
        self.addCleanup(launcher.kill)
        compositor = self.desktop.compositor
        until("the launcher's window", lambda: LAUNCHER in compositor.identities())
        compositor.activate(LAUNCHER)
        self.wait_until_active(LAUNCHER)

    def finish_unseen_scan(self, program: Program) -> None:
        """Performs a scan that ends while another window has the focus."""
        self.home.hold()
        self.choose(program, self.home.make_repository("webshop"))
        program.window.press(SCAN)
        self.wait_for_session()
        self.open_launcher()
        program.window.wait_until_inactive()
        self.home.release()
        until("the notice", lambda: self.desktop.notices.titles() == ["Scan complete"])
