"""A desktop session for one script alone: a session bus and a folder for sockets."""

from __future__ import annotations

import os
import subprocess
import sys
import tempfile

from processes import end_with_parent

MARK = "LOADWICK_OWN_SESSION"


def run_again_in_own_session() -> None:
    """Ends the script with the status of a second run of it in a session of its own.

    Returns only in that second run. The accessibility bus listens on a socket whose name is fixed
    inside the folder for sockets: two scripts that share the folder take each other's bus away.
    """
    end_with_parent()
    if MARK in os.environ:
        return
    with tempfile.TemporaryDirectory(prefix="loadwick-session-") as sockets:
        environment = os.environ | {MARK: "yes", "XDG_RUNTIME_DIR": sockets}
        for name in ("DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS", "DISPLAY"):
            environment.pop(name, None)
        command = ["dbus-run-session", "--", sys.executable, "-B", *sys.argv]
        status = subprocess.run(
            command, env=environment, check=False, preexec_fn=end_with_parent
        ).returncode
    sys.exit(status)
