"""A keyboard and a pointer for compositors that are built on wlroots."""

from __future__ import annotations

import tempfile

from compositors.wayland_client import WaylandClient

# The first request of both managers creates a device; the others are requests of the devices.
CREATE = 0
KEYMAP, KEY = 0, 1
MOVE_TO, BUTTON, FRAME = 1, 2, 4

NO_SEAT = 0
TEXT_KEYMAP = 1
RETURN = 28
LEFT_BUTTON = 0x110
DOWN_AND_UP = (1, 0)
KEYS = b"""xkb_keymap {
xkb_keycodes "" { minimum = 8; maximum = 255; <RTRN> = 36; };
xkb_types "" { include "complete" };
xkb_compatibility "" { include "complete" };
xkb_symbols "" { key <RTRN> { [ Return ] }; };
};\0"""


class WlrootsInput:
    """The devices, as long as this object lives."""

    def __init__(self, display: str) -> None:
        self._client = WaylandClient(display)
        self._time = 0
        keyboards = self._client.bind("zwp_virtual_keyboard_manager_v1", 1)
        self._keyboard = self._client.create(keyboards, CREATE, self._client.bind("wl_seat", 1))
        with tempfile.TemporaryFile() as keys:
            keys.write(KEYS)
            keys.flush()
            self._client.request(
                self._keyboard, KEYMAP, TEXT_KEYMAP, len(KEYS), descriptors=[keys.fileno()]
            )
        pointers = self._client.bind("zwlr_virtual_pointer_manager_v1", 1)
        self._pointer = self._client.create(pointers, CREATE, NO_SEAT)
        self._client.wait()

    def close(self) -> None:
        """Removes the devices."""
        self._client.close()

    def press_return(self) -> None:
        """Presses and releases the Return key."""
        for state in DOWN_AND_UP:
            self._client.request(self._keyboard, KEY, self._now(), RETURN, state)
        self._client.wait()

    def click(self, point: tuple[int, int], screen: tuple[int, int]) -> None:
        """Moves the pointer to a point of the screen of this size and clicks there."""
        self._client.request(self._pointer, MOVE_TO, self._now(), *point, *screen)
        self._client.request(self._pointer, FRAME)
        for state in DOWN_AND_UP:
            self._client.request(self._pointer, BUTTON, self._now(), LEFT_BUTTON, state)
            self._client.request(self._pointer, FRAME)
        self._client.wait()

    def _now(self) -> int:
        self._time += 1
        return self._time
