"""Runs programs in turns and takes their times."""

from __future__ import annotations

import json
import os
import re
import resource
import subprocess
import tempfile
import time
from pathlib import Path
from typing import Any

from measured import Row, ratios


def seconds_of(command: str, is_wall: bool) -> float:
    """The time of a command line whose output goes nowhere: the processor's, of all that it starts,
    or the wall clock's. The former stands still while other programs have the processor."""
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    start = time.perf_counter()
    subprocess.run(["sh", "-c", command], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                   check=False)
    wall = time.perf_counter() - start
    since = resource.getrusage(resource.RUSAGE_CHILDREN)
    return wall if is_wall else (since.ru_utime - used.ru_utime) + (since.ru_stime - used.ru_stime)


def pair_times(ours: str, floor: str, count: int,
               is_wall: bool) -> tuple[list[float], list[float]]:
    """The times of two commands that take turns; the first turn warms up and does not count."""
    pairs = []
    for turn in range(count + 1):
        pair = seconds_of(ours, is_wall), seconds_of(floor, is_wall)
        if turn > 0:
            pairs.append(pair)
    return [pair[0] for pair in pairs], [pair[1] for pair in pairs]


def figures(command: list[str]) -> dict[str, int]:
    """What the measuring tool prints."""
    text = subprocess.run(command, capture_output=True, check=True, text=True).stdout
    return {name: int(value) for name, value in (line.split() for line in text.splitlines())}


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
        text = Path(out.name).read_text(encoding="utf-8")  # none where the program has no such row
        runs = json.loads(text)["benchmarks"] if text else []
    times: dict[str, list[float]] = {}
    for run in runs:
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


def window_lines(command: list[str], extra: dict[str, str]) -> list[list[float]]:
    """The numbers that a program of the window prints, line by line."""
    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software"}
    text = subprocess.run(command, capture_output=True, check=True, text=True,
                          env=environment | extra).stdout
    return [[float(word) for word in line.split()] for line in text.splitlines()]
