"""The frames of the pages, and the window that nothing happens to."""

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

from measured import Row  # noqa: E402
from processes import wakes_of  # noqa: E402

FRAME_MILLISECONDS = 16.7  # of 60 in a second
AGAINST = "a frame of 60 in a second"
LINE = re.compile(r" +(\w+) +(\d+) frames +50th +([\d.]+) +99th +([\d.]+)")
LONG = "overview-of-size"  # the scene with the lists of 10,000
START_SECONDS = 3.0  # until a window is at rest
IDLE_SECONDS = 10.0
RENDERED = b"renderloop"  # in each line that the toolkit logs for a frame

ALL = "all"  # the frames of all scenes of a program together

Costs = dict[str, dict[str, float]]  # of a scene, what it does: milliseconds


def costs_of(text: str) -> Costs:
    """What `loadwick-stage frames` prints: of the frames of each scene the 99th percentile.
    A scene is a paragraph whose first line is its name."""
    costs: Costs = {}
    for line in text.splitlines():
        found = LINE.match(line)
        if not found:
            scene = costs.setdefault(line, {})
        elif int(found.group(2)) > 0:
            scene[found.group(1)] = float(found.group(4))
    return costs


def one_round(programs: Path) -> Costs:
    """All scenes once."""
    costs: Costs = {}
    for names in [["overview"], ["trends", "compare"]]:
        command = [str(programs / "loadwick-stage"), "frames", "1", *names]
        found = costs_of(subprocess.run(command, capture_output=True, check=True,
                                        text=True).stdout)
        found[f"{ALL} {names[0]}"] = found.pop(ALL)
        costs |= found
    return costs


def frame_rows(programs: Path, count: int) -> list[Row]:
    """The 99th percentile of what a frame costs the interface's thread, in the worst of the scenes.
    A page enters in some two dozen frames, too few for a percentile: there, that of all pages."""
    costs = [one_round(programs) for _ in range(count)]

    def row(what: str, action: str, names: Iterable[str]) -> Row:
        values = [max(each[name][action] for name in names if action in each[name])
                  for each in costs]
        return Row(f"frame time, 99th percentile: {what}", AGAINST, values,
                   FRAME_MILLISECONDS, FRAME_MILLISECONDS, " ms")

    together = {name for name in costs[0] if name.startswith(ALL)}
    every = set(costs[0]) - together
    return [row("while pages enter", "arriving", together),
            row("while charts are hovered", "hovering", every),
            row("while lists of 10,000 scroll", "scrolling", {LONG}),
            row("while all other pages scroll", "scrolling", every - {LONG})]


def idle(programs: Path, home: Path) -> tuple[int, int]:
    """How often an idle window is woken, and how many frames it draws, in ten seconds."""
    log = home / "log"
    environment = os.environ | {
        "HOME": str(home), "QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software",
        "QT_LOGGING_RULES": "qt.scenegraph.time.renderloop=true"}
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
    """Both rows."""
    with tempfile.TemporaryDirectory() as home:
        rounds = [idle(programs, Path(home)) for _ in range(count)]
    return [Row("an idle window: wake-ups in 10 s", "none", [float(each[0]) for each in rounds],
                0, 2, ""),
            Row("an idle window: frames in 10 s", "none", [float(each[1]) for each in rounds],
                0, 0, "")]
