"""The window: its start, a scan, the frames of its pages, and idling."""

from __future__ import annotations

import os
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from typing import Iterable

ROOT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/endtoend"))

from processes import wakes_of  # noqa: E402
from rounds import Row, output_of, ratios  # noqa: E402

OFF_SCREEN = {"QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software"}
BARE = "a bare Controls window, same renderer"
FRAME_MILLISECONDS = 16.7  # at 60 frames a second
FRAME = re.compile(r" +(\w+) +(\d+) frames +50th +([\d.]+) +99th +([\d.]+)")
LONG = "overview-of-size"  # the scene with the lists of 10,000
ALL = "all"  # the frames of all scenes of a call together
START_SECONDS = 3.0  # until a window is at rest
IDLE_SECONDS = 10.0
RENDERED = b"renderloop"  # in each line that the toolkit logs for a frame

Costs = dict[str, dict[str, float]]  # by scene and what it does: milliseconds


def lines_of(command: list[str], environment: dict[str, str]) -> list[list[float]]:
    """The numbers that a window program prints, line by line."""
    lines = output_of(command, OFF_SCREEN | environment).splitlines()
    return [[float(word) for word in line.split()] for line in lines]


def start(program: Path, home: str) -> list[float]:
    """Milliseconds from exec to the first frame, and resident KiB two seconds later."""
    return lines_of([str(program)], {"HOME": home, "STARTUP_BEGAN": str(time.time_ns())})[0]


def startup_rows(programs: Path, count: int) -> list[Row]:
    """First frame and memory. The windows start alternately; the first round is a warm-up."""
    with tempfile.TemporaryDirectory() as home:
        turns = [[start(programs / f"startup_{window}", home) for window in ("bare", "loadwick")]
                 for _ in range(count + 1)][1:]
    bare, ours = ([turn[window] for turn in turns] for window in (0, 1))
    return [Row("exec to the first frame of the empty state", BARE,
                ratios([line[0] for line in ours], [line[0] for line in bare]), 1.5, 2),
            Row("resident memory of the empty state", BARE,
                [(mine[1] - other[1]) / 1024 for mine, other in zip(ours, bare)],
                8, 16, " MB more")]


def scan_rows(programs: Path, count: int) -> list[Row]:
    """From the key to the first frame of the result."""
    lines = lines_of([str(programs / "loadwick-stage"), "scans", str(count)], {})
    return [Row("a scan with an instant stand-in, Ctrl+R to the first frame of the result",
                "the stand-in alone and one frame",
                [total - alone - frame for total, alone, frame in lines], 60, 60, " ms more")]


def costs_of(text: str) -> Costs:
    """The 99th percentile of each scene's frames, as `loadwick-stage frames` prints them: a scene is
    a paragraph whose first line is its name."""
    costs: Costs = {}
    for line in text.splitlines():
        found = FRAME.match(line)
        if not found:
            scene = costs.setdefault(line, {})
        elif int(found.group(2)) > 0:
            scene[found.group(1)] = float(found.group(4))
    return costs


def one_round(programs: Path) -> Costs:
    """All scenes once."""
    costs: Costs = {}
    for names in [["overview"], ["trends", "compare"]]:
        found = costs_of(output_of([str(programs / "loadwick-stage"), "frames", "1", *names]))
        found[f"{ALL} {names[0]}"] = found.pop(ALL)
        costs |= found
    return costs


def frame_rows(programs: Path, count: int) -> list[Row]:
    """The 99th percentile of a frame's cost on the interface thread, in the worst scene. A page
    arrives in some two dozen frames, too few for a percentile: arrivals count all pages together."""
    costs = [one_round(programs) for _ in range(count)]

    def row(what: str, action: str, names: Iterable[str]) -> Row:
        values = [max(each[name][action] for name in names if action in each[name])
                  for each in costs]
        return Row(f"frame time, 99th percentile: {what}", "one frame at 60 a second", values,
                   FRAME_MILLISECONDS, FRAME_MILLISECONDS, " ms")

    together = {name for name in costs[0] if name.startswith(ALL)}
    every = set(costs[0]) - together
    return [row("while pages enter", "arriving", together),
            row("while charts are hovered", "hovering", every),
            row("while lists of 10,000 scroll", "scrolling", {LONG}),
            row("while all other pages scroll", "scrolling", every - {LONG})]


def idle(programs: Path, home: Path) -> tuple[int, int]:
    """How often an idle window wakes, and how many frames it draws, in ten seconds."""
    log = home / "log"
    environment = os.environ | OFF_SCREEN | {
        "HOME": str(home), "QT_LOGGING_RULES": "qt.scenegraph.time.renderloop=true"}
    with log.open("wb") as out:
        program = subprocess.Popen([str(programs / "loadwick")], env=environment, stderr=out)
    try:
        time.sleep(START_SECONDS)
        wakes, frames = wakes_of(program.pid), log.read_bytes().count(RENDERED)
        assert frames > 0, "frames are not counted"
        time.sleep(IDLE_SECONDS)
        return wakes_of(program.pid) - wakes, log.read_bytes().count(RENDERED) - frames
    finally:
        program.kill()
        program.wait()


def idle_rows(programs: Path, count: int) -> list[Row]:
    """Wake-ups and frames."""
    with tempfile.TemporaryDirectory() as home:
        wakes, frames = zip(*(idle(programs, Path(home)) for _ in range(count)))
    return [Row("an idle window: wake-ups in 10 s", "none", [float(each) for each in wakes], 0, 2),
            Row("an idle window: frames in 10 s", "none", [float(each) for each in frames], 0, 0)]
