"""The program under the compositor that LOADWICK_DESKTOP names: checks, or only pictures."""

from __future__ import annotations

import os

import desktop_case
import desktop_checks
import desktop_pictures
from compositors.gnome_shell import GnomeNotices, GnomeShell
from compositors.kwin import KWin
from compositors.sway import Sway
from compositors.weston import Weston
from endtoend_case import main
from notice_services import Dunst, Mako

DESKTOPS = {
    "sway": (Sway, Mako),
    "kwin": (KWin, Mako),
    "mutter": (GnomeShell, GnomeNotices),
    "weston": (Weston, Dunst),
}
NAME = os.environ["LOADWICK_DESKTOP"]


def base() -> type[desktop_case.DesktopCase]:
    """What the desktop is started for."""
    if "LOADWICK_PICTURES" in os.environ:
        return desktop_pictures.DesktopPictures
    return desktop_checks.DesktopChecks


class DesktopTest(base()):  # type: ignore[misc]
    """One of the desktops."""

    compositor_type, notices_type = DESKTOPS[NAME]


if __name__ == "__main__":
    main()
