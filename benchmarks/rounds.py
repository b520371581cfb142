"""Runs programs alternately, measures their times, and compares them with goals."""

from __future__ import annotations

import json
import os
import re
import resource
import statistics
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Any, Optional


GOALS = json.loads((Path(__file__).parent / "goals.json").read_text(encoding="utf-8"))


@dataclass
class Row:
    """One line of the table."""

    what: str
    against: str
    values: list[float]  # one for each round
    goal: Optional[float] = None
    bracket: Optional[float] = None
    unit: str = ""  # of the values; ratios have none

    @property
    def median(self) -> float:
        """The value that counts."""
        return statistics.median(self.values)

    def verdict(self) -> str:
        """Whether the goal is met."""
        if self.goal is None or self.bracket is None:
            return "for comparison"
        if self.median <= self.goal:
            return "met"
        return "within bracket" if self.median <= self.bracket else "MISSED"

    def cells(self) -> list[str]:
        """The row as the table shows it."""
        goal = ""
        if self.goal is not None:
            goal = f"{self.goal:g}" + (f" ({self.bracket:g})" if self.bracket != self.goal else "")
        spread = f"{min(self.values):.2f} to {max(self.values):.2f}"
        return [self.what, self.against, f"{self.median:.2f}{self.unit}", spread, goal, self.verdict()]


def window_row(name: str, values: list[float], prefix: str = "") -> Row:
    """The row of a goal of the window."""
    goal = GOALS["window"][name]
    return Row(prefix + goal["what"], goal["against"], values, goal["goal"], goal["bracket"],
               goal.get("unit", ""))


def ratios(ours: list[float], floor: list[float], part: float = 1.0) -> list[float]:
    """The ratios of our times to the floor, round by round."""
    return [mine / other / part for mine, other in zip(ours, floor)]


def output_of(command: list[str], environment: Optional[dict[str, str]] = None) -> str:
    """The output of a program, which must succeed."""
    return subprocess.run(command, capture_output=True, check=True, text=True,
                          env=os.environ | (environment or {})).stdout


def seconds_of(command: str, is_wall: bool) -> float:
    """The time of a command line whose output is discarded: the processor's, of all that it starts,
    or the wall clock's. Other programs do not affect the former."""
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    start = time.perf_counter()
    subprocess.run(["sh", "-c", command], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                   check=False)
    wall = time.perf_counter() - start
    since = resource.getrusage(resource.RUSAGE_CHILDREN)
    return wall if is_wall else (since.ru_utime - used.ru_utime) + (since.ru_stime - used.ru_stime)


def pair_times(ours: str, floor: str, count: int,
               is_wall: bool) -> tuple[list[float], list[float]]:
    """The times of two commands, run alternately; the first round is a warm-up."""
    pairs = [(seconds_of(ours, is_wall), seconds_of(floor, is_wall)) for _ in range(count + 1)][1:]
    return [pair[0] for pair in pairs], [pair[1] for pair in pairs]


def figures(command: list[str]) -> dict[str, int]:
    """The output of the measuring tool."""
    return {name: int(value) for name, value in map(str.split, output_of(command).splitlines())}


def instructions(command: list[str]) -> int:
    """The instructions of a command, as callgrind counts them."""
    valgrind = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null"]
    report = subprocess.run(valgrind + command, capture_output=True, check=True, text=True).stderr
    found = re.search(r"Collected : (\d+)", report)
    assert found, "callgrind counted nothing"
    return int(found.group(1))


def benchmark(program: Path, folder: Path, count: int, row: str) -> dict[str, list[float]]:
    """The times of a row in a Google Benchmark program by name, one for each repetition. Rows run one
    by one, so that what a row compares is measured within the same second."""
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        subprocess.run([program, f"--benchmark_filter=^{row}/", f"--benchmark_repetitions={count}",
                        "--benchmark_min_time=0.1", "--benchmark_enable_random_interleaving=true",
                        f"--benchmark_out={out.name}", "--benchmark_out_format=json"],
                       cwd=folder, check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        text = Path(out.name).read_text(encoding="utf-8")  # empty if the program has no such row
    times: dict[str, list[float]] = {}
    for run in json.loads(text)["benchmarks"] if text else []:
        if run["run_type"] == "iteration":
            is_wall = run["name"].endswith("real_time")
            times.setdefault(run["run_name"].removesuffix("/real_time"), []).append(
                run["real_time" if is_wall else "cpu_time"])
    return times


def in_process_row(goal: dict[str, Any], times: dict[str, list[float]]) -> Row:
    """The row of a goal that a benchmark program measures."""
    mine, other = goal.get("arguments", ["", ""])
    values = ratios(times[f"{goal['id']}/ours{mine}"], times[f"{goal['id']}/floor{other}"],
                    goal.get("per", 1.0))
    return Row(goal["what"], goal["against"], values, goal["goal"], goal["bracket"])
