"""Whether a program's interface answers in time, asked over and over on a thread of its own."""

from __future__ import annotations

import threading
import time
from pathlib import Path
from typing import Any, Optional

from gi.repository import Gio, GLib

from bus import ask
from processes import is_running

INTERVAL_SECONDS = 0.1
GIVEN_UP_SECONDS = 30
ROOT = "/org/a11y/atspi/accessible/root"
DAEMON = "org.freedesktop.DBus"


def kept_waiting(process: int, thread: int) -> float:
    """The seconds for which a thread was ready, but the processors were busy with others."""
    try:
        times = Path(f"/proc/{process}/task/{thread}/schedstat").read_text(encoding="ascii")
    except (FileNotFoundError, ProcessLookupError):
        return 0.0
    return int(times.split()[1]) / 1e9


class Heartbeat:
    """Asks the root of the accessible tree for the number of its children: the thread that draws must
    answer. The time in which the machine let the program, the bus or this thread wait for a
    processor does not count."""

    def __init__(self, process: int) -> None:
        self.slowest = 0.0
        self._process = process
        self._ended = threading.Event()
        address = ask("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress")[0]
        client = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
        bus = Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._bus = Gio.DBusConnection.new_for_address_sync(address, client | bus, None, None)
        self._daemon = self._call(DAEMON, "/", f"{DAEMON}.GetConnectionUnixProcessID", "(s)", DAEMON)
        self._name = self._find_name()
        self._thread = threading.Thread(target=self._ask_on, daemon=True)
        self._thread.start()

    def stop(self) -> float:
        """Asks no more; returns the longest time that an answer took, in seconds."""
        self._ended.set()
        self._thread.join()
        self._bus.close_sync(None)
        return self.slowest

    def _call(self, service: str, path: str, method: str, types: str, *values: str) -> Any:
        interface, _, name = method.rpartition(".")
        arguments = GLib.Variant(types, values)
        flags, limit = Gio.DBusCallFlags.NONE, GIVEN_UP_SECONDS * 1000
        answer = self._bus.call_sync(
            service, path, interface, name, arguments, None, flags, limit, None
        )
        return answer.unpack()[0]

    def _find_name(self) -> str:
        for name in self._call(DAEMON, "/", f"{DAEMON}.ListNames", "()"):
            try:
                owner = self._call(DAEMON, "/", f"{DAEMON}.GetConnectionUnixProcessID", "(s)", name)
            except GLib.Error:  # it has left
                continue
            if owner == self._process:
                return str(name)
        raise AssertionError("the program is not on the accessibility bus")

    def _ask_on(self) -> None:
        while not self._ended.wait(INTERVAL_SECONDS):
            seconds = self._seconds_of_answer()
            if seconds is None:
                return
            self.slowest = max(self.slowest, seconds)

    def _seconds_of_answer(self) -> Optional[float]:
        start, waited = time.monotonic(), self._waited()
        get = "org.freedesktop.DBus.Properties.Get"
        try:
            self._call(self._name, ROOT, get, "(ss)", "org.a11y.atspi.Accessible", "ChildCount")
        except GLib.Error:
            if not is_running(self._process) or time.monotonic() - start < GIVEN_UP_SECONDS:
                return None  # it is ending
        return time.monotonic() - start - (self._waited() - waited)

    def _waited(self) -> float:
        threads = [(self._process, self._process), (self._daemon, self._daemon)]
        threads.append((threading.main_thread().native_id or 0, threading.get_native_id()))
        return sum(kept_waiting(*thread) for thread in threads)
