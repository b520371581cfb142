"""The window: its start, a scan, the frames of its pages, and idling."""

from __future__ import annotations

import os
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/endtoend"))

from processes import wakes_of  # noqa: E402
from rounds import Row, output_of, window_row  # noqa: E402
from session import Display  # noqa: E402

ON_DISPLAY = {"QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "software"}
OFF_SCREEN = {"QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software"}
FRAME = re.compile(r" +(\w+) +(\d+) frames +50th +([\d.]+) +99th +([\d.]+)")
MANY = "compare-200x50"  # the scene of 200 repositories of 50 categories
ALL = "all"  # the frames of all scenes of a call together
START_SECONDS = 3.0  # until a window is at rest
IDLE_SECONDS = 10.0
RENDERED = b"renderloop"  # in each line that the toolkit logs for a frame

Costs = dict[str, dict[str, float]]  # by scene and what it does: milliseconds


def lines_of(command: list[str], environment: dict[str, str]) -> list[list[float]]:
    """The numbers that a window program prints, line by line."""
    lines = output_of(command, environment).splitlines()
    return [[float(word) for word in line.split()] for line in lines]


def start(program: Path, home: str) -> list[float]:
    """Milliseconds from exec to the first frame, and resident KiB two seconds later. The caller has
    a display."""
    began = {"HOME": home, "STARTUP_BEGAN": str(time.time_ns())}
    return lines_of([str(program)], ON_DISPLAY | began)[0]


def startup_rows(programs: Path, data: Path, count: int) -> list[Row]:
    """First frame and memory, by what is recorded. The windows start alternately on a display, as a
    user's do; the first round is a warm-up."""
    ours = programs / "startup_loadwick"
    with Display(), tempfile.TemporaryDirectory() as home:
        windows = {"bare": (programs / "startup_bare", home), "none": (ours, home),
                   "ordinary": (ours, str(data / "home-ordinary")),
                   "full": (ours, str(data / "home-full"))}
        turns = [{name: start(*window) for name, window in windows.items()}
                 for _ in range(count + 1)][1:]

    def frames(name: str, other: str) -> list[float]:
        return [turn[name][0] / turn[other][0] for turn in turns]

    def memory(name: str) -> list[float]:
        return [(turn[name][1] - turn["bare"][1]) / 1024 for turn in turns]

    return [window_row("first-frame-none", frames("none", "bare")),
            window_row("first-frame-ordinary", frames("ordinary", "bare")),
            window_row("first-frame-full", frames("full", "none")),
            window_row("memory-none", memory("none")),
            window_row("memory-ordinary", memory("ordinary"))]


def scan_rows(programs: Path, count: int) -> list[Row]:
    """From the key to the first frame of the result."""
    lines = lines_of([str(programs / "loadwick-stage"), "scans", str(count)], OFF_SCREEN)
    return [Row("a scan with an instant stand-in, Ctrl+R to the first frame of the result",
                "the stand-in alone and one frame",
                [total - alone - frame for total, alone, frame in lines], 60, 60, " ms more"),
            window_row("result", [total - alone for total, alone, _ in lines])]


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


def one_round(programs: Path, *options: str, scale: int = 1) -> Costs:
    """All scenes once, in a window of a size and a scale."""
    environment = OFF_SCREEN | {"QT_SCALE_FACTOR": str(scale)}
    costs: Costs = {}
    for names in [["overview"], ["trends", "compare"]]:
        command = [str(programs / "loadwick-stage"), "frames", *options, "1", *names]
        costs |= costs_of(output_of(command, environment))
    del costs[ALL]
    return costs


def worst(costs: Costs, action: str) -> float:
    """Of all scenes."""
    return max(scene[action] for scene in costs.values() if action in scene)


def frame_rows(programs: Path, count: int) -> list[Row]:
    """The 99th percentile of a frame's cost on the interface thread, each scene for itself. A page
    arrives in some dozens of frames: that percentile is its worst frame."""
    usual = [one_round(programs) for _ in range(count)]
    many = [{MANY: each.pop(MANY)} for each in usual]
    kinds = {"frames": usual, "frames-many": many,
             "frames-large": [one_round(programs, "--size", "2560x1440") for _ in range(count)],
             "frames-fine": [one_round(programs, scale=2) for _ in range(count)]}
    actions = {"arriving": "entering", "hovering": "hovering", "scrolling": "scrolling"}
    return [window_row(name, [worst(each, action) for each in rounds], f"{what}: ")
            for name, rounds in kinds.items() for action, what in actions.items()]


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
