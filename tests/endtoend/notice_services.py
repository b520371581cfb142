"""Services that show desktop notices, as a user sees and presses them."""

from __future__ import annotations

import re
from typing import Any

from bus import ask
from compositors.compositor import SCREEN
from waiting import until

NOTICES = "org.freedesktop.Notifications"
MAKO = "fr.emersion.Mako"
DUNST = "org.dunstproject.cmd0"
SUMMARY = re.compile(r"^\tsummary: '(.*)'$", re.MULTILINE)


class NoticeService:
    """What its kinds share."""

    def __init__(self, compositor: Any) -> None:
        self._compositor = compositor

    def environment(self) -> dict[str, str]:
        """What the service's environment has besides the desktop's."""
        return {}


class Mako(NoticeService):
    """mako, for compositors that let a program draw on top of all windows."""

    service = NOTICES
    command = ["mako"]

    def titles(self) -> list[str]:
        """The titles of the notices that are shown."""
        return [str(notice["summary"]) for notice in self._notices()]

    def press(self) -> None:
        """Clicks on the notice, which is in the upper right corner."""

        def is_pressed() -> bool:
            self._compositor.click(SCREEN[0] - 160, 40)
            return not self.titles()

        until("the notice to be pressed", is_pressed)

    def _notices(self) -> list[dict[str, object]]:
        return list(ask(NOTICES, "/fr/emersion/Mako", f"{MAKO}.ListNotifications")[0])


class Dunst(NoticeService):
    """dunst, for a compositor that lets no program draw on top, but has an X server behind it."""

    service = NOTICES
    command = ["dunst", "-print"]

    def environment(self) -> dict[str, str]:
        settings = self._compositor.home / ".config" / "dunst" / "dunstrc"
        settings.parent.mkdir()
        settings.write_text("[urgency_normal]\ntimeout = 0\n", encoding="utf-8")
        return {"DISPLAY": self._compositor.x_display, "WAYLAND_DISPLAY": ""}

    def titles(self) -> list[str]:
        """The title of the notice that is shown, which is the last that dunst has printed."""
        if not self._ask("org.freedesktop.DBus.Properties.Get", f"('{DUNST}', 'displayedLength')")[0]:
            return []
        log = self._compositor.home / f"{NOTICES}.log"
        return SUMMARY.findall(log.read_text(encoding="utf-8", errors="replace"))[-1:]

    def press(self) -> None:
        """Performs the default action of the notice."""
        self._ask(f"{DUNST}.NotificationAction", "(uint32 0,)")

    def _ask(self, method: str, arguments: str) -> Any:
        return ask(NOTICES, "/org/freedesktop/Notifications", method, arguments)
