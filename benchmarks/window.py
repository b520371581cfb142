"""The window's start beside that of a bare window."""

from __future__ import annotations

import tempfile
import time
from pathlib import Path

from measured import Row, ratios
from rounds import window_lines

AGAINST = "a bare Controls window, same renderer"
WINDOWS = ["bare", "loadwick"]


def start(programs: Path, window: str, home: str) -> list[float]:
    """Milliseconds from exec to the first frame, and the KiB in memory two seconds later."""
    began = {"HOME": home, "STARTUP_BEGAN": str(time.time_ns())}
    return window_lines([str(programs / f"startup_{window}")], began)[0]


def startup_rows(programs: Path, count: int) -> list[Row]:
    """Both rows. The windows start in turns; the first turn warms up and does not count."""
    with tempfile.TemporaryDirectory() as home:
        turns = [[start(programs, window, home) for window in WINDOWS]
                 for _ in range(count + 1)][1:]
    bare, ours = ([turn[place] for turn in turns] for place in range(len(WINDOWS)))
    return [Row("exec to the first frame of the empty state", AGAINST,
                ratios([line[0] for line in ours], [line[0] for line in bare]), 1.5, 2),
            Row("resident memory of the empty state", AGAINST,
                [(mine[1] - other[1]) / 1024 for mine, other in zip(ours, bare)],
                8, 16, " MB more")]
