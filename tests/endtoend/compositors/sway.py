"""sway, without a screen and without input devices."""

from __future__ import annotations

import os
from typing import Optional

from compositors.compositor import NOBODY, Compositor


class Sway(Compositor):
    """A running sway with one output."""

    executable = "sway"

    def command(self) -> list[str]:
        return ["sway", "-c", "/dev/null"]

    def settings(self) -> dict[str, str]:
        return {
            "HOME": "/nonexistent",
            "WLR_BACKENDS": "headless",
            "WLR_LIBINPUT_NO_DEVICES": "1",
            "WLR_RENDERER": "pixman",
        }

    def user(self) -> Optional[int]:
        """Nobody, instead of root, as whom sway does not start."""
        return NOBODY if os.geteuid() == 0 else None
