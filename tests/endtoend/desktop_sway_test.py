"""The program under sway, with mako for its notices."""

from __future__ import annotations

import desktop_checks
from compositors.sway import Sway
from endtoend_case import main
from notice_services import Mako


class SwayTest(desktop_checks.DesktopChecks):
    """sway, which gives the focus to a window that may have it."""

    compositor_type = Sway
    notices_type = Mako


if __name__ == "__main__":
    main()
