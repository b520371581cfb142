"""A private desktop session for one script: a session bus, a folder for sockets, and X servers."""

from __future__ import annotations

import os
import subprocess
import sys
import tempfile
from pathlib import Path

from processes import adopt_orphans, end_with_parent, kill_orphans
from waiting import LIMIT_SECONDS, WaitFailed, until

MARK = "LOADWICK_OWN_SESSION"

# Only the accessibility bus is started on request; anything else that the machine has installed would
# make a difference.
BUS = """<busconfig>
<type>session</type>
<listen>unix:dir={folder}</listen>
<servicedir>{folder}/services</servicedir>
<policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
</policy>
</busconfig>
"""
ACCESSIBILITY = Path("/usr/share/dbus-1/services/org.a11y.Bus.service")


def run_again_in_own_session() -> None:
    """Runs the script again in its own session and ends with that run's status.

    Returns only in that second run. The accessibility bus listens on a socket whose name is fixed
    inside the folder for sockets: two scripts that share the folder would take over each other's bus.
    """
    end_with_parent()
    if MARK in os.environ:
        return
    adopt_orphans()
    with tempfile.TemporaryDirectory(prefix="loadwick-session-") as sockets:
        environment = os.environ | {MARK: "yes", "XDG_RUNTIME_DIR": sockets}
        for name in ("DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS", "DISPLAY"):
            environment.pop(name, None)
        command = ["dbus-run-session", f"--config-file={bus_settings(Path(sockets))}", "--"]
        command += [sys.executable, "-B", *sys.argv]
        try:
            status = subprocess.run(
                command, env=environment, check=False, preexec_fn=end_with_parent
            ).returncode
        finally:
            kill_orphans()
    sys.exit(status)


def bus_settings(folder: Path) -> Path:
    """Writes the settings of a session bus whose socket is in the folder; returns their file."""
    services = folder / "services"
    services.mkdir()
    (services / ACCESSIBILITY.name).symlink_to(ACCESSIBILITY)
    settings = folder / "bus.conf"
    settings.write_text(BUS.format(folder=folder), encoding="utf-8")
    return settings


class Display:
    """A private X server with a window manager, so that windows become active."""

    def __init__(self, height: int = 900, width: int = 1280) -> None:
        self._size = f"{width}x{height}"
        self._processes: list[subprocess.Popen[bytes]] = []

    def __enter__(self) -> "Display":
        try:
            os.environ["DISPLAY"] = self._start_server()
            os.environ.pop("WAYLAND_DISPLAY", None)
            self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_: object) -> None:
        for process in reversed(self._processes):
            process.terminate()
            process.wait(LIMIT_SECONDS)

    def kill_server(self) -> None:
        """Kills the X server, which ends the display for good."""
        self._processes[0].kill()

    def _start(self, command: list[str], descriptors: tuple[int, ...] = ()) -> None:
        nobody = {"HOME": "/nonexistent", "XDG_CONFIG_HOME": "/nonexistent"}
        self._processes.append(
            subprocess.Popen(
                command,
                env=os.environ | nobody,
                pass_fds=descriptors,
                preexec_fn=end_with_parent,
                stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL,
            )
        )

    def _start_server(self) -> str:
        reader, writer = os.pipe()
        # Without -noreset the server restarts whenever its last client leaves, and drops clients that
        # are just connecting.
        screen = ["-screen", "0", f"{self._size}x24", "-nolisten", "tcp", "-noreset"]
        self._start(["Xvfb", "-displayfd", str(writer), *screen], (writer,))
        os.close(writer)
        with os.fdopen(reader) as answers:
            number = answers.readline().strip()
        if not number:
            raise WaitFailed("Xvfb ended before it was ready")
        return f":{number}"

    def _start_window_manager(self) -> None:
        self._start(["openbox"])
        until("the window manager", self._has_window_manager)

    def _has_window_manager(self) -> bool:
        if self._processes[-1].poll() is not None:
            raise WaitFailed("openbox ended before it was ready")
        answer = subprocess.run(
            ["xdotool", "get_num_desktops"], capture_output=True, check=False
        )
        return answer.returncode == 0
