"""A client that sends a Wayland compositor bare requests, for interfaces that no tool speaks."""

from __future__ import annotations

import socket
import struct
from typing import Sequence, Union

from waiting import LIMIT_SECONDS

DISPLAY = 1  # the object that every client starts with
SYNC, GET_REGISTRY = 0, 1  # requests of it
BIND = 0  # a request of the registry
DONE = 0  # an event of a sync's answer
GLOBAL = 0  # an event of the registry


class WaylandClient:
    """A connection; whatever it creates lives until it is closed."""

    def __init__(self, display: str) -> None:
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.settimeout(LIMIT_SECONDS)
        self._socket.connect(display)
        self._last = DISPLAY
        self._globals: dict[str, int] = {}
        self._registry = self.create(DISPLAY, GET_REGISTRY)
        self.wait()

    def close(self) -> None:
        """Ends the connection."""
        self._socket.close()

    def interfaces(self) -> set[str]:
        """What the compositor offers."""
        return set(self._globals)

    def new_id(self) -> int:
        """A number for a new object."""
        self._last += 1
        return self._last

    def request(
        self, target: int, opcode: int, *values: Union[int, str], descriptors: Sequence[int] = ()
    ) -> None:
        """Sends a request with these arguments; file descriptors have no place among them."""
        body = b"".join(encoded(value) for value in values)
        head = struct.pack("=IHH", target, opcode, 8 + len(body))
        socket.send_fds(self._socket, [head + body], list(descriptors))

    def create(self, target: int, opcode: int, *values: Union[int, str]) -> int:
        """Sends a request whose last argument is a new object; returns that."""
        created = self.new_id()
        self.request(target, opcode, *values, created)
        return created

    def bind(self, interface: str, version: int) -> int:
        """The compositor's object of this interface."""
        name = self._globals[interface]
        return self.create(self._registry, BIND, name, interface, version)

    def wait(self) -> None:
        """Returns once the compositor has heard everything so far."""
        answer = self.create(DISPLAY, SYNC)
        while True:
            target, opcode, body = self._event()
            if (target, opcode) == (answer, DONE):
                return
            if (target, opcode) == (self._registry, GLOBAL):
                name, length = struct.unpack_from("=II", body)
                self._globals[body[8 : 8 + length - 1].decode()] = name
            elif target == DISPLAY and opcode == 0:
                raise ConnectionError(f"the compositor refuses: {body!r}")

    def _event(self) -> tuple[int, int, bytes]:
        target, opcode, size = struct.unpack("=IHH", self._read(8))
        return target, opcode, self._read(size - 8)

    def _read(self, count: int) -> bytes:
        data = b""
        while len(data) < count:
            part = self._socket.recv(count - len(data))
            if not part:
                raise ConnectionError("the compositor has closed the connection")
            data += part
        return data


def encoded(value: Union[int, str]) -> bytes:
    """A number, or a text with its length, as the protocol has it."""
    if isinstance(value, int):
        return struct.pack("=I", value)
    text = value.encode() + b"\0"
    return struct.pack("=I", len(text)) + text + b"\0" * (-len(text) % 4)
