"""Services that show desktop notices, as a user sees and presses them."""

from __future__ import annotations

from bus import ask
from compositors.compositor import SCREEN, Compositor
from waiting import until

NOTICES = "org.freedesktop.Notifications"
MAKO = "fr.emersion.Mako"


class Mako:
    """mako, for compositors that let a program draw on top of all windows."""

    service = NOTICES
    command = ["mako"]

    def __init__(self, compositor: Compositor) -> None:
        self._compositor = compositor

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
