"""What the user does in the window: when the answer is seen, how long the interface thread is away
meanwhile, and what it leaves in memory."""

from __future__ import annotations

from pathlib import Path

from rounds import Row, window_row
from window import OFF_SCREEN, Display, output_of, start

ORDINARY = 30  # categories in each scan
FULL = 4_400  # two hundred such scans are as long as the store allows
FIRST_FRAME, STALL, RESIDENT = 0, 1, 2

Costs = dict[str, list[float]]  # by action: milliseconds, milliseconds, KiB


def costs(programs: Path, categories: int) -> Costs:
    """The lines of `loadwick-stage actions`."""
    command = [str(programs / "loadwick-stage"), "actions", str(categories)]
    lines = [line.split() for line in output_of(command, OFF_SCREEN).splitlines()]
    return {name: [float(word) for word in words] for name, *words in lines}


def action_rows(programs: Path, data: Path, count: int) -> list[Row]:
    """The window that acts is off screen: the memory is what the program's own has after its start,
    and what the actions add in the other."""
    with Display():
        bare = [start(programs / "startup_bare", "/nonexistent")[1] for _ in range(count)]
        own = [start(programs / "startup_loadwick", str(data / "home-ordinary"))[1]
               for _ in range(count)]
    ordinary = [costs(programs, ORDINARY) for _ in range(count)]
    full = [costs(programs, FULL) for _ in range(count)]

    def memory(action: str) -> list[float]:
        return [(mine - alone + each[action][RESIDENT] - each["start"][RESIDENT]) / 1024
                for each, mine, alone in zip(ordinary, own, bare)]

    keys = [max(each[page][FIRST_FRAME] for page in ("trends", "compare")) for each in ordinary]
    return [window_row("memory-scan", memory("scan")),
            window_row("memory-pages", memory("overview")),
            window_row("key", keys),
            *(window_row("stall", [each[action][STALL] for each in full], f"{action}: ")
              for action in full[0])]
