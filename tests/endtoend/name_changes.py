"""What the accessibility bus says while names change, as a screen reader hears it."""

from __future__ import annotations

from typing import Any

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from accessible_tree import unless_gone  # noqa: E402
from waiting import until  # noqa: E402

EVENT = "object:property-change:accessible-name"


class NameChanges:
    """The new names of one program's objects, in the order in which the bus told them."""

    def __init__(self, process: int) -> None:
        self._process = process
        self.names: list[str] = []
        self._listener = Atspi.EventListener.new(self._note)
        self._listener.register(EVENT)

    def __enter__(self) -> "NameChanges":
        return self

    def __exit__(self, *_: object) -> None:
        self._listener.deregister(EVENT)

    def _note(self, event: Any) -> None:
        if unless_gone(event.source.get_process_id, 0) == self._process:
            self.names.append(str(unless_gone(event.source.get_name, "")))

    def _hear(self) -> None:
        """Takes what has come; the toolkit waits for a loop that asks."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass

    def wait_for(self, name: str) -> None:
        """Returns once something was given this name."""

        def heard() -> bool:
            self._hear()
            return name in self.names

        until(f"the news that something is called {name!r} now; heard were {self.names}", heard)
