"""A window as assistive technology sees and presses it, from another process."""

from __future__ import annotations

import subprocess
from random import Random
from typing import Any, Callable, Iterator, Optional, TypeVar

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from processes import is_running  # noqa: E402
from waiting import LIMIT_SECONDS, WaitFailed, until  # noqa: E402

Found = TypeVar("Found")

STOPS_ABOVE = 0.05  # how often an object at random is one that holds others


def xdotool(*arguments: str) -> str:
    """xdotool's output."""
    return subprocess.run(
        ["xdotool", *arguments], check=True, capture_output=True, text=True, timeout=LIMIT_SECONDS
    ).stdout


def has_active_window() -> bool:
    """Whether a window of the display has the keyboard focus."""
    command = ["xdotool", "getactivewindow"]
    return subprocess.run(command, check=False, capture_output=True).returncode == 0


def unless_gone(look: Callable[[], Found], otherwise: Found) -> Found:
    """The result of `look`, or `otherwise` if the object has left the tree meanwhile."""
    try:
        return look()
    except GLib.Error:
        return otherwise


class AccessibleTree:
    """What a running program, known by its process id, offers on the accessibility bus."""

    def __init__(self, process: int) -> None:
        self._process = process
        self._root = self._until("the program's accessible tree", self._find_root)

    def _until(self, what: str, look: Callable[[], Optional[Found]]) -> Found:
        """Like `until`, but fails as soon as the program ends, and says what the window showed."""

        def look_while_running() -> Optional[Found]:
            if not is_running(self._process):
                raise WaitFailed(f"the program ended while waiting for {what}")
            return unless_gone(look, None)

        try:
            return until(what, look_while_running)
        except WaitFailed as failure:
            raise WaitFailed(f"{failure}\n{self._outline()}") from None

    def _outline(self) -> str:
        if not hasattr(self, "_root"):
            return "  (nothing)"
        return "\n".join(
            f"  [{role_of(item)}] {unless_gone(lambda: text_of(item), '')!r}"
            for item in self.items()
        )

    def _find_root(self) -> Optional[Any]:
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is None or child.get_process_id() != self._process:
                continue
            if child.get_child_count() > 0:
                return child
        return None

    def _below(self, item: Any) -> Iterator[Any]:
        yield item
        for index in range(unless_gone(item.get_child_count, 0)):
            child = unless_gone(lambda: item.get_child_at_index(index), None)
            if child is not None:
                yield from self._below(child)

    def items(self, out_of_sight: bool = False) -> Iterator[Any]:
        """All visible accessible objects, in tree order, as they are now. On request also those that
        are not, as the toolkit does not tell what is hidden from what is scrolled out of sight."""
        self._root.clear_cache()
        for item in self._below(self._root):
            if out_of_sight or unless_gone(lambda: is_showing(item), False):
                yield item

    def find(self, name: str, role: str = "") -> Optional[Any]:
        """The first visible object with this name and, if given, this role."""
        for item in self.items():
            if unless_gone(lambda: text_of(item) == name or item.get_name() == name, False):
                if not role or role_of(item) == role:
                    return item
        return None

    def anything(self, chance: Random) -> Any:
        """An object at random, visible or not, reached from the program by children at random."""
        self._root.clear_cache()
        item = self._root
        while chance.random() > STOPS_ABOVE:
            count = unless_gone(item.get_child_count, 0)
            index = chance.randrange(count) if count > 0 else -1
            child = unless_gone(lambda: item.get_child_at_index(index), None) if count > 0 else None
            if child is None:
                break
            item = child
        return item

    def wait_for(self, name: str, role: str = "") -> Any:
        """The object of this name, once it is visible."""
        return self._until(
            f"{role or 'something'} that says {name!r}", lambda: self.find(name, role)
        )

    def wait_until_gone(self, name: str) -> None:
        """Returns once no visible object has this name."""
        self._until(f"{name!r} to disappear", lambda: self.find(name) is None)

    def focused(self) -> Optional[Any]:
        """The focused object: the innermost, if several claim the focus."""
        found = self._claiming_focus()
        return found[-1] if found else None

    def _claiming_focus(self) -> list[Any]:
        return [item for item in self.items() if unless_gone(lambda: is_focused(item), False)]

    def wait_until_focused(self, name: str) -> None:
        """Returns once the object of this name is focused. With Qt 6.8 the chosen row of a closed combo
        box claims the focus too."""

        def has_focus() -> bool:
            return any(item.get_name() == name for item in self._claiming_focus())

        self._until(f"the focus on {name!r}", has_focus)

    def texts(self) -> list[str]:
        """The texts of all visible objects."""
        return [unless_gone(lambda: text_of(item), "") for item in self.items()]

    def announcements(self) -> list[str]:
        """The words that a screen reader is to speak, oldest first. Their objects take no room."""
        self._root.clear_cache()
        notices = [item for item in self._below(self._root) if role_of(item) == "notification"]
        names = [unless_gone(item.get_name, "") for item in notices]
        return [name for name in names if name]

    def wait_for_announcement(self, words: str) -> None:
        """Returns once these words are announced."""
        self._until(f"the announcement {words!r}", lambda: words in self.announcements())

    def press(self, name: str, out_of_sight: bool = False) -> None:
        """Presses the button or the row of this name, once it can be pressed."""
        button = self._until(
            f"an enabled button {name!r}", lambda: self._pressable(name, out_of_sight)
        )
        if not Atspi.Action.do_action(button, press_index(button)):
            raise AssertionError(f"pressing the button {name!r} failed")

    def _pressable(self, name: str, out_of_sight: bool) -> Optional[Any]:
        for item in self.items(out_of_sight):
            if unless_gone(item.get_name, "") == name and press_index(item) >= 0:
                return item if is_enabled(item) else None
        return None

    def is_enabled(self, name: str) -> bool:
        """Whether the button of this name can be pressed."""
        return is_enabled(self.wait_for(name, "button"))

    def key(self, keys: str) -> None:
        """Types real keys, such as "ctrl+o", into the program's window, once it is active."""
        self._until("the window to become active", self._is_active)
        xdotool("key", keys)

    def type(self, text: str) -> None:
        """Types the text with real keys into the focused object, once the window is active."""
        self._until("the window to become active", self._is_active)
        xdotool("type", "--delay", "1", text)

    def resize(self, width: int, height: int) -> None:
        """Gives the program's window this size, once it is active."""
        self._until("the window to become active", self._is_active)
        # The display server learns this later than the program.
        until("the display's active window", has_active_window)
        xdotool("getactivewindow", "windowsize", "--sync", str(width), str(height))

    def height(self) -> int:
        """That of the program's window without its title bar, in units that the scale does not change."""
        [frame] = [item for item in self.items() if role_of(item) == "frame"]
        return int(Atspi.Component.get_extents(frame, Atspi.CoordType.SCREEN).height)

    def wait_until_inactive(self) -> None:
        """Returns once the program knows that its window has lost the focus."""
        self._until("the window to become inactive", lambda: not self._is_active())

    def _is_active(self) -> bool:
        active = Atspi.StateType.ACTIVE
        return any(
            unless_gone(lambda: item.get_state_set().contains(active), False)
            for item in self.items()
            if role_of(item) in ("frame", "window", "dialog", "alert")
        )


def is_showing(item: Any) -> bool:
    """Whether the object is on the screen."""
    states = item.get_state_set()
    return states.contains(Atspi.StateType.SHOWING) and states.contains(Atspi.StateType.VISIBLE)


def role_of(item: Any) -> str:
    """The role's name, empty once the object has gone; "button" was "push button" before AT-SPI 2.53."""
    name = str(unless_gone(item.get_role_name, ""))
    return "button" if name == "push button" else name


def is_in_window(item: Any) -> bool:
    """Whether the whole object is inside its window, which a taller object never is."""
    holder = item
    while role_of(holder) not in ("frame", "window"):
        holder = holder.get_parent()
    # In a window's own coordinates the toolkit adds the window's position to the size.
    box = Atspi.Component.get_extents(item, Atspi.CoordType.SCREEN)
    window = Atspi.Component.get_extents(holder, Atspi.CoordType.SCREEN)
    return bool(
        box.x >= window.x
        and box.y >= window.y
        and box.x + box.width <= window.x + window.width
        and box.y + box.height <= window.y + window.height
    )


def is_focused(item: Any) -> bool:
    """Whether the object has the keyboard focus."""
    return bool(item.get_state_set().contains(Atspi.StateType.FOCUSED))


def is_enabled(item: Any) -> bool:
    """Whether the object reacts to the user."""
    return unless_gone(lambda: item.get_state_set().contains(Atspi.StateType.ENABLED), False)


def press_index(item: Any) -> int:
    """The index of the action that presses a button or selects a row; -1 when there is none."""
    for index in range(unless_gone(lambda: Atspi.Action.get_n_actions(item), 0)):
        if Atspi.Action.get_action_name(item, index).lower() in ("press", "toggle"):
            return index
    return -1


def text_of(item: Any) -> str:
    """The object's whole text if it has one, else its name."""
    if "Text" in item.get_interfaces():
        text = Atspi.Text.get_text(item, 0, Atspi.Text.get_character_count(item))
        if text:
            return str(text).replace("\N{PARAGRAPH SEPARATOR}", "\n")  # the toolkit's line break
    return str(item.get_name() or "")
