"""The program under the compositor that LOADWICK_DESKTOP names."""

from __future__ import annotations

import os

import desktop_checks
from compositors.gnome_shell import GnomeNotices, GnomeShell
from compositors.kwin import KWin
from compositors.sway import Sway
from endtoend_case import main
from notice_services import Mako

DESKTOPS = {"sway": (Sway, Mako), "kwin": (KWin, Mako), "mutter": (GnomeShell, GnomeNotices)}
NAME = os.environ["LOADWICK_DESKTOP"]


class DesktopTest(desktop_checks.DesktopChecks):
    """One of the desktops."""

    compositor_type, notices_type = DESKTOPS[NAME]


if __name__ == "__main__":
    main()
