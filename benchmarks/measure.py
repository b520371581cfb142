"""Measures every goal and writes the table; see benchmarks/run."""

from __future__ import annotations

import argparse
import os
import platform
import re
import subprocess
from pathlib import Path

from acting import action_rows
from rounds import (GOALS, Row, benchmark, figures, in_process_row, instructions, pair_times,
                    ratios)
from scanning import scanning_rows
from window import frame_rows, idle_rows, scan_rows, startup_rows

ROOT = Path(__file__).resolve().parents[1]
DOCUMENT = ROOT / "docs/performance.md"
MARKS = "<!-- table -->", "<!-- end of the table -->"
SESSION = "6f1c2b0a-8e55-4c2d-9a61-000999999999"
HISTORY = ".local/share/Loadwick"
DATA = [("projects", "projects", 100_000), ("record", "record-100mb", 100_000_000),
        ("record", "record-1gb", 1_000_000_000), ("transcript", "head-100mb.jsonl", 100_000_000),
        ("transcript", "head-1mb.jsonl", 1_000_000), ("transcript", "head-1gb.jsonl", 10**9),
        ("long-line", "line-64mb.jsonl", 64_000_000), ("history", "history-200", 200),
        ("history", "history-10000", 10_000), ("compared-history", "home-ordinary/" + HISTORY, 30),
        ("compared-history", "home-full/" + HISTORY, 4_400)]


class Bench:
    """One run over a build."""

    def __init__(self, build: Path, rounds: int) -> None:
        self.build = build
        self.programs = build / "bin"
        self.data = build / "benchmark-data"
        self.tool = str(self.programs / "loadwick-measure")
        self.count = rounds

    def make_data(self) -> None:
        """Generates the missing files."""
        for what, name, size in DATA:
            subprocess.run([self.tool, "make", what, self.data / name, str(size)], check=True,
                           stdout=subprocess.DEVNULL)

    def in_process(self) -> list[Row]:
        """The operations that run in one program with their floors."""
        times: dict[str, list[float]] = {}
        for program in ["bench_core", "bench_spawn"]:
            if (self.programs / program).exists():
                for row in {goal["id"] for goal in GOALS["in-process"]}:
                    times |= benchmark(self.programs / program, self.build, self.count, row)
        return [in_process_row(goal, times) for goal in GOALS["in-process"]
                if f"{goal['id']}/ours{goal.get('arguments', [''])[0]}" in times]

    def processes(self) -> list[Row]:
        """The operations that run as processes, with equivalent command lines."""
        names = {"measure": self.tool, "data": str(self.data), "session": SESSION}
        times, rows = {}, []
        for goal in GOALS["processes"]:
            ours, floor = goal["ours"].format(**names), goal["floor"].format(**names)
            pair = pair_times(ours, floor, self.count, goal.get("clock") == "wall")
            times[goal["id"]] = pair[0]
            rows.append(Row(goal["what"], goal["against"], ratios(*pair), goal.get("goal"),
                            goal.get("bracket")))
        growth = ratios(times["capture-1gb"], times["capture-100mb"])
        return rows + [Row("capture time of 1 GB", "of 100 MB", growth, 12, 12)]

    def peak(self, *words: str) -> float:
        """The peak memory of an operation in bytes."""
        return figures([self.tool, *words])["peak-kib"] * 1024.0

    def memory(self) -> list[Row]:
        """The peaks; one run is enough, since memory does not vary."""
        record = str(self.data / "record-1gb")
        size = float(os.path.getsize(record))
        growth = (self.peak("first-usage", str(self.data / "head-1gb.jsonl"))
                  - self.peak("first-usage", str(self.data / "head-1mb.jsonl")))
        return [Row("peak memory of the 1 GB capture, through parsing", "bytes captured",
                    [self.peak("capture-and-parse", "/bin/cat", record) / size], 1.1, 2.2),
                Row("memory while a head grows from 1 MB to 1 GB", "growth", [growth / 1e6],
                    1, 1, " MB")]

    def growth(self) -> list[Row]:
        """The instructions per unit of work in a large input, against a small one."""
        nothing = instructions([self.tool, "weights", "0"])

        def item(count: int) -> float:
            words = [str(count)]
            return (instructions([self.tool, "treemap", *words])
                    - instructions([self.tool, "weights", *words])) / count

        def scan(count: int) -> float:
            folder = str(self.data / f"history-{count}")
            return (instructions([self.tool, "leaderboard", folder]) - nothing) / count

        return [Row("instructions for an item of a treemap, of 100,000", "of 1,000",
                    [item(100_000) / item(1_000)], 1.7, 1.7),
                Row("instructions for a scan of a history and its analytics, of 10,000", "of 200",
                    [scan(10_000) / scan(200)], 1.5, 1.5)]

    def startup(self) -> list[Row]:
        """The window's first frame and its memory. Starts are short and vary: eight a round."""
        return startup_rows(self.programs, self.data, 8 * self.count)

    def actions(self) -> list[Row]:
        """Pages, scans and a deletion over an ordinary history and the longest. A round takes a
        minute and a half."""
        return action_rows(self.programs, self.data, min(self.count, 3))

    def scan(self) -> list[Row]:
        """A scan through the window."""
        return scan_rows(self.programs, self.count)

    def scanning(self) -> list[Row]:
        """The window while a scan runs. A round watches for a quarter of a minute."""
        return scanning_rows(self.programs, min(self.count, 3))

    def pages(self) -> list[Row]:
        """The idle window and the frames of the pages. A round takes a minute and has many frames,
        so three rounds suffice."""
        count = min(self.count, 3)
        return idle_rows(self.programs, count) + frame_rows(self.programs, count)

    def measure(self, only: str, is_core: bool) -> list[Row]:
        """Every part whose name contains the word; without the window if only the core counts."""
        parts = {"in-process": self.in_process, "processes": self.processes, "memory": self.memory,
                 "growth": self.growth}
        if not is_core:
            parts |= {"startup": self.startup, "scan": self.scan, "running": self.scanning,
                      "actions": self.actions, "pages": self.pages}
        self.make_data()
        return [row for name, part in parts.items() if only in name for row in part()]


def version(command: str) -> str:
    """The first version number that a command prints."""
    text = subprocess.run(["sh", "-c", f"{command} 2>&1"], capture_output=True, text=True,
                          check=False).stdout
    found = re.search(r"\d+\.\d+(\.\d+)?", text)
    return f"{command.split()[0]} {found.group() if found else '?'}"


def machine() -> str:
    """The machine and tools that the figures were taken on."""
    text = Path("/proc/cpuinfo").read_text(encoding="utf-8")
    found = re.search(r"model name\s*: (.*)", text)
    tools = ["g++ --version", "find --version", "cat --version", "grep --version", "rg --version",
             "valgrind --version", "qmake6 -query QT_VERSION"]
    return (f"{found.group(1) if found else '?'}, {os.cpu_count()} cores, Linux "
            f"{platform.release()}; " + ", ".join(version(tool) for tool in tools)
            + f". Load at the end: {os.getloadavg()[0]:.1f}.")


def table(rows: list[Row]) -> str:
    """The rows as Markdown."""
    head = ["operation", "against", "median", "least to most", "goal (bracket)", "verdict"]
    lines = [head, ["---"] * len(head)] + [row.cells() for row in rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def write_document(text: str) -> None:
    """Puts the table between its markers in the document."""
    before, rest = DOCUMENT.read_text(encoding="utf-8").split(MARKS[0])
    after = rest.split(MARKS[1])[1]
    DOCUMENT.write_text(f"{before}{MARKS[0]}\n{text}\n{MARKS[1]}{after}", encoding="utf-8")


def main() -> None:
    """Measures, prints, writes."""
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=Path)
    parser.add_argument("--core", action="store_true", help="leave out the window")
    parser.add_argument("--rounds", type=int, default=7)
    parser.add_argument("--only", default="", help="the parts whose names contain this word")
    given = parser.parse_args()
    rows = Bench(given.build.resolve(), given.rounds).measure(given.only, given.core)
    text = f"{table(rows)}\n\n{given.rounds} rounds. {machine()}"
    print(text)
    if not given.only and not given.core:
        write_document(text)


main()
