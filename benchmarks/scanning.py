"""The window while a scan runs, which takes minutes: what it costs the processor meanwhile."""

from __future__ import annotations

import os
import subprocess
import sys
import time
from pathlib import Path
from typing import Iterator

ROOT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/endtoend"))

from processes import wakes_of  # noqa: E402
from rounds import Row  # noqa: E402
from session import Display  # noqa: E402
from throw_away_home import ThrowAwayHome  # noqa: E402
from waiting import until  # noqa: E402

REST_SECONDS = 2.0  # until an arriving page is at rest
WATCHED_SECONDS = 5.0
GOALS = {  # milliseconds of the processor and wake-ups, a second, with their brackets
    "with Overview shown": ((12, 20), (40, 70)),
    "with Trends shown": ((4, 8), (40, 70)),
    "minimised": ((1, 3), (2, 4)),
}

Pace = tuple[float, float]  # milliseconds of the processor and wake-ups, a second


def xdotool(*arguments: str) -> str:
    """What it says; nothing if it fails."""
    return subprocess.run(["xdotool", *arguments], capture_output=True, check=False,
                          text=True).stdout.strip()


def processor_seconds(process: int) -> float:
    """What the threads of a process have used; those that ended do not count."""
    files = Path(f"/proc/{process}/task").glob("*/schedstat")
    return sum(int(file.read_text().split()[0]) for file in files) / 1e9


def pace_of(process: int) -> Pace:
    """Watches a window that has come to rest."""
    time.sleep(REST_SECONDS)
    start, used, wakes = time.monotonic(), processor_seconds(process), wakes_of(process)
    time.sleep(WATCHED_SECONDS)
    passed = time.monotonic() - start
    return ((processor_seconds(process) - used) * 1000 / passed,
            (wakes_of(process) - wakes) / passed)


def paces(process: int, home: ThrowAwayHome) -> Iterator[Pace]:
    """Scans and watches the window in each of its states, in the order of the goals."""
    found = until("the window", lambda: xdotool("search", "--onlyvisible", "--pid", str(process)))
    window = found.split()[-1]
    xdotool("windowactivate", "--sync", window)
    until("the repository", lambda: xdotool("key", "ctrl+o", "key", "ctrl+r") or home.runs())
    yield pace_of(process)
    xdotool("key", "ctrl+2")
    yield pace_of(process)
    xdotool("windowminimize", "--sync", window)
    yield pace_of(process)


def one_round(programs: Path) -> list[Pace]:
    """Each state once, on a display of its own."""
    with Display(), ThrowAwayHome() as home:
        home.hold()
        home.will_choose(home.make_repository("webshop"))
        environment = os.environ | {"HOME": str(home.path), "QT_QPA_PLATFORM": "xcb",
                                    "QT_QUICK_BACKEND": "software",
                                    "XDG_RUNTIME_DIR": str(home.path / ".runtime")}
        with subprocess.Popen([str(programs / "loadwick-stage"), "window", "--beside-others"],
                              env=environment) as program:
            try:
                return list(paces(program.pid, home))
            finally:
                program.kill()


def scanning_rows(programs: Path, count: int) -> list[Row]:
    """Processor time and wake-ups of each state."""
    rounds = [one_round(programs) for _ in range(count)]
    rows = []
    for place, (state, goals) in enumerate(GOALS.items()):
        for which, (what, unit) in enumerate([("processor time", " ms"), ("wake-ups", "")]):
            rows.append(Row(f"a second of a running scan, {state}: {what}", "none",
                            [each[place][which] for each in rounds], *goals[which], unit))
    return rows
