"""What the system says about processes, and how to tie one to its parent."""

from __future__ import annotations

import ctypes
import os
import signal
from pathlib import Path

# Options of prctl(2).
SET_PARENT_DEATH_SIGNAL = 1
SET_CHILD_SUBREAPER = 36


def end_with_parent() -> None:
    """Makes the system kill this process when its parent ends, for whatever reason."""
    ctypes.CDLL(None).prctl(SET_PARENT_DEATH_SIGNAL, signal.SIGKILL)


def adopt_orphans() -> None:
    """Makes this process the parent of its descendants whose own parents end."""
    ctypes.CDLL(None).prctl(SET_CHILD_SUBREAPER, 1)


def kill_orphans() -> None:
    """Kills this process's children, and theirs, until none is left."""
    while child := child_of(os.getpid()):
        os.kill(child, signal.SIGKILL)
        os.waitpid(child, 0)


def is_running(process: int) -> bool:
    """Whether a process of this id is running (a zombie is not)."""
    try:
        status = Path(f"/proc/{process}/stat").read_text(encoding="ascii", errors="replace")
    except (FileNotFoundError, ProcessLookupError):
        return False
    return status.rpartition(")")[2].split()[0] not in "ZX"


def child_of(process: int) -> int:
    """The process id of a process's first child; 0 while it has none."""
    children = Path(f"/proc/{process}/task/{process}/children").read_text().split()
    return int(children[0]) if children else 0


def has_handle_of(process: int, other: int) -> bool:
    """Whether a process holds a handle of another one, through which it learns of the other's end."""
    for handle in Path(f"/proc/{process}/fdinfo").iterdir():
        try:
            if f"\nPid:\t{other}\n" in handle.read_text():
                return True
        except FileNotFoundError:  # closed meanwhile
            continue
    return False


def wakes_of(process: int) -> int:
    """How often the threads of a process have slept voluntarily, and so were woken."""
    count = 0
    for status in Path(f"/proc/{process}/task").glob("*/status"):
        for line in status.read_text().splitlines():
            if line.startswith("voluntary_ctxt_switches:"):
                count += int(line.split()[1])
    return count
