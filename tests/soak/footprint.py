"""What a running program holds: memory, descriptors, threads, children and files."""

from __future__ import annotations

import os
import time
from dataclasses import dataclass
from pathlib import Path

from waiting import until

STEADY_SECONDS = 1.5  # the program gives memory back a second after its history has changed


def resident_megabytes(process: int) -> float:
    """The resident memory of a process."""
    for line in Path(f"/proc/{process}/status").read_text(encoding="ascii").splitlines():
        if line.startswith("VmRSS:"):
            return int(line.split()[1]) / 1024
    raise AssertionError(f"process {process} has no memory")


def resting_megabytes(process: int) -> float:
    """The resident memory once it has not changed for a while."""
    found, since = resident_megabytes(process), time.monotonic()

    def is_steady() -> bool:
        nonlocal found, since
        now = resident_megabytes(process)
        if now != found:
            found, since = now, time.monotonic()
        return time.monotonic() - since > STEADY_SECONDS

    until("the memory to rest", is_steady)
    return found


def children_of(process: int) -> list[int]:
    """The children that any thread of a process has started."""
    found: list[int] = []
    for children in Path(f"/proc/{process}/task").glob("*/children"):
        try:
            found += map(int, children.read_text(encoding="ascii").split())
        except (FileNotFoundError, ProcessLookupError):  # the thread has ended
            continue
    return found


OF_THE_TOOLKIT = (".cache/", ".config/QtProject.conf")


def files_below(home: Path) -> frozenset[str]:
    """The paths of all files in a home, relative to it, but for those that the toolkit keeps."""
    paths = (
        os.path.relpath(os.path.join(holder, name), home)
        for holder, _, names in os.walk(home)
        for name in names
    )
    return frozenset(path for path in paths if not path.startswith(OF_THE_TOOLKIT))


@dataclass(frozen=True)
class Footprint:
    """Everything but the memory, which never returns to the same figure."""

    descriptors: int
    threads: int
    children: int
    files: frozenset[str]

    @classmethod
    def of(cls, process: int, home: Path) -> Footprint:
        """The footprint of a process whose files are all in its home."""
        return cls(
            len(os.listdir(f"/proc/{process}/fd")),
            len(os.listdir(f"/proc/{process}/task")),
            len(children_of(process)),
            files_below(home),
        )

    def is_within(self, other: Footprint) -> bool:
        """Whether there is nothing that `other` does not have as well."""
        return (
            self.descriptors <= other.descriptors
            and self.threads <= other.threads
            and self.children <= other.children
            and self.files <= other.files
        )

    def beyond(self, other: Footprint) -> str:
        """What there is, and the files that `other` does not have."""
        return (
            f"{self.descriptors} descriptors, {self.threads} threads, {self.children} children, "
            f"{len(self.files)} files, new {sorted(self.files - other.files)}"
        )
