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
GIVEN_UP_SECONDS = 30  # on any machine
ROOT = "/org/a11y/atspi/accessible/root"
DAEMON = "org.freedesktop.DBus"


def seconds_run(process: int) -> float:
    """The processor time of the thread that draws."""
    try:
        times = Path(f"/proc/{process}/task/{process}/schedstat").read_text(encoding="ascii")
    except (FileNotFoundError, ProcessLookupError):
        return 0.0
    return int(times.split()[0]) / 1e9


def seconds_of_pressure() -> float:
    """For how long something on this machine has waited for a processor or a disk."""
    found = [
        line.rpartition("=")[2]
        for file in Path("/proc/pressure").glob("[ci]*")
        for line in file.read_text(encoding="ascii").splitlines()
        if line.startswith("some")
    ]
    return sum(map(int, found)) / 1e6


class Heartbeat:
    """Asks the root of the accessible tree for the number of its children: the thread that draws must
    answer. Where the machine is busy, only that thread's own processor time counts."""

    def __init__(self, process: int) -> None:
        self.slowest = 0.0
        self._process = process
        self._ended = threading.Event()
        address = ask("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress")[0]
        client = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
        bus = Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._bus = Gio.DBusConnection.new_for_address_sync(address, client | bus, None, None)
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
        start, ran, pressure = time.monotonic(), seconds_run(self._process), seconds_of_pressure()
        get = "org.freedesktop.DBus.Properties.Get"
        try:
            self._call(self._name, ROOT, get, "(ss)", "org.a11y.atspi.Accessible", "ChildCount")
        except GLib.Error:
            is_late = time.monotonic() - start >= GIVEN_UP_SECONDS
            return GIVEN_UP_SECONDS if is_late and is_running(self._process) else None  # it is ending
        ran, pressure = seconds_run(self._process) - ran, seconds_of_pressure() - pressure
        return max(ran, time.monotonic() - start - pressure)
