"""A user who scans again and again, and does other things in between."""

from __future__ import annotations

import os
import random
import shutil
import time
from collections import Counter
from typing import Callable

from accessible_tree import is_enabled, xdotool
from endtoend_case import CHOOSE, SCAN
from processes import is_running
from program import Program
from throw_away_home import ThrowAwayHome
from waiting import LIMIT_SECONDS, WaitFailed, until

MOST_RECORDS = 200  # that the program keeps
REPOSITORIES = ("webshop", "notes", "api")
PAGES = ("ctrl+1", "ctrl+2", "ctrl+3")
KEYS = ("Tab", "shift+Tab", "Down", "Up", "Next", "Prior", "Home", "End", "Escape", "F6")
SIZES = ((960, 640), (1180, 780), (1240, 900))
CATEGORIES = ("system prompt", "system tools", "mcp tools", "memory files", "skills", "messages")
SUCCESSES = ("usage", "transcript")
FAILURES = ("many-turns", "unknown-turns", "nothing", "failed", "signed-out", "plain-text")
TIME_OUTS = ("hang", "stubborn")
TIME_OUT_SECONDS = 2.0
REPEAT_SECONDS = 10.0  # until a key counts as lost; earlier, two keys could start two scans


class ScanningUser:
    """Drives one program. After each action the history must be readable and as it should be."""

    def __init__(self, program: Program, home: ThrowAwayHome, chance: random.Random) -> None:
        self.done: Counter[str] = Counter()
        self.scans = 0
        self._program = program
        self._window = program.window
        self._home = home
        self._chance = chance
        self._recorded: dict[str, int] = {}  # the totals that the history must hold, by identity
        self._actions: dict[Callable[[], None], float] = {
            self.succeed: 70,
            self.fail: 12,
            self.show_page: 8,
            self.press_key: 5,
            self.click: 3,
            self.resize: 3,
            self.choose: 3,
            self.export: 0.8,
            self.clear: 0.6,
            self.open_recent: 0.6,
            self.time_out: 0.4,
            self.lose_folder: 0.4,
            self.lose_command: 0.4,
        }
        for name in REPOSITORIES:
            home.make_repository(name)

    def do_everything_once(self) -> None:
        """Each action, so that whatever is made once exists, and the state in which a run ends."""
        self.choose()
        for action in self._actions:
            self._do(action)
        self.return_to_start()

    def act(self) -> None:
        """One action at random."""
        [action] = self._chance.choices(list(self._actions), list(self._actions.values()))
        self._do(action)

    def return_to_start(self) -> None:
        """Three scans of the first repository, nothing else recorded, the Overview, no dialog, and
        no grabs of the pointer, which the toolkit keeps and adds to until the next click."""
        self.click()
        self.clear()
        self._choose(REPOSITORIES[0])
        for _ in range(3):
            self._succeed("usage", 40_000, CATEGORIES)
        self._key(PAGES[0])
        self._resize(*SIZES[1])
        self._check_history()

    def _do(self, action: Callable[[], None]) -> None:
        action()
        self.done[action.__name__] += 1
        self._check_history()

    def _check_history(self) -> None:
        if self._history() != self._recorded:
            raise AssertionError(f"the history holds {self._history()}, not {self._recorded}")

    def _history(self) -> dict[str, int]:
        scans = self._home.scans()
        order = [(scan["date"], scan["repositoryName"]) for scan in scans]
        assert order == sorted(order), order
        return {scan["id"]: scan["total"] for scan in scans}

    def succeed(self) -> None:
        """A scan with its own total and categories."""
        count = self._chance.randint(0, len(CATEGORIES))
        categories = self._chance.sample(CATEGORIES, count)
        outcome = SUCCESSES[self._chance.random() < 0.2]
        self._succeed(outcome, self._chance.randint(1_000, 150_000), categories)

    def _succeed(self, outcome: str, total: int, categories: tuple[str, ...] | list[str]) -> None:
        share = total // (len(categories) + 1)
        answer = "\\n".join(f"SLAB {name} TOKENS {share}" for name in categories)
        self._home.play(
            outcome, input=0, cache_creation=total, cache_read=0, answer=answer
        )
        self._start_session()
        until("the recorded scan", lambda: self._history().keys() - self._recorded.keys())
        self._take_record(total)
        shutil.rmtree(self._home.projects, ignore_errors=True)

    def _take_record(self, total: int) -> None:
        now, before = self._history(), self._recorded
        new = [now[scan] for scan in now.keys() - before.keys()]
        kept = {scan: tokens for scan, tokens in before.items() if scan in now}
        lost = max(0, len(before) + 1 - MOST_RECORDS)
        if new != [total] or len(kept) != len(before) - lost:
            raise AssertionError(f"{total} was to be added to {len(before)} scans, which added {new}")
        self._recorded = now

    def fail(self) -> None:
        """A scan whose session fails at once."""
        self._fail(self._chance.choice(FAILURES))

    def time_out(self) -> None:
        """A scan whose session takes too long."""
        self._fail(self._chance.choice(TIME_OUTS))

    def _fail(self, outcome: str) -> None:
        self._home.play(outcome)
        self._start_session()
        session = self._home.runs()[-1]
        # The words may be those of an earlier failure, and a session that begins reads what to play.
        until("the end of the session", lambda: not is_running(session))
        self._window.wait_for("Scan failed")

    def _start_session(self) -> None:
        count = len(self._home.runs())
        end = time.monotonic() + LIMIT_SECONDS
        while time.monotonic() < end:
            self._key("ctrl+r")
            repeat = time.monotonic() + REPEAT_SECONDS
            while time.monotonic() < repeat:
                if len(self._home.runs()) > count:
                    self.scans += 1
                    return
                time.sleep(0.005)
            self._key("Escape")  # a list that is still open takes the keys
        raise WaitFailed(f"no session starts\n{self._window.texts()}")

    def lose_folder(self) -> None:
        """A scan of a folder that has gone since it was chosen."""
        folder = self._home.make_repository("lost")
        self._choose("lost")
        shutil.rmtree(folder)
        self._scan_in_vain()
        self.choose()

    def lose_command(self) -> None:
        """A scan without a command to run."""
        self.choose()
        self._home.executable.unlink()
        self._scan_in_vain()
        self._home.install_stand_in()

    def _scan_in_vain(self) -> None:
        self._window.wait_for("Ready to scan")
        self._key("ctrl+r")
        self._window.wait_for("Scan failed")
        self.scans += 1

    def choose(self) -> None:
        """Another repository, or the same."""
        self._choose(self._chance.choice(REPOSITORIES))

    def _choose(self, name: str) -> None:
        self._window.wait_for(CHOOSE, "button")
        self._home.will_choose(os.fsencode(self._home.path / name))
        until("a repository to be chosen", lambda: self._window.is_enabled(CHOOSE))
        self._key("ctrl+o")
        self._window.wait_for(SCAN, "button")
        self._window.wait_for(name)

    def show_page(self) -> None:
        """A page."""
        self._key(self._chance.choice(PAGES))

    def press_key(self) -> None:
        """A key that moves the focus or the page."""
        self._key(self._chance.choice(KEYS))

    def click(self) -> None:
        """The pointer somewhere in the window, and a click of a button that presses nothing."""
        place = [str(self._chance.randrange(size)) for size in SIZES[0]]
        xdotool("getactivewindow", "mousemove", "--window", "%1", *place, "click", "2")

    def resize(self) -> None:
        """A size of the window."""
        self._resize(*self._chance.choice(SIZES))

    def export(self) -> None:
        """A dialog for saving, which is cancelled half of the times."""
        self._key(self._chance.choice(PAGES[1:]))
        command = self._window.find(self._chance.choice(("Save Data…", "Save Chart…")), "button")
        if command is None or not is_enabled(command):
            return
        self._window.press(str(command.get_name()))
        self._window.wait_until_focused("File name:")
        saves = self._chance.random() < 0.5
        if saves:
            self._window.type("exported.csv")
        self._window.key("Return" if saves else "Escape")
        self._window.wait_until_gone("File name:")
        if saves:
            self._take_away_exports()

    def _take_away_exports(self) -> None:
        def exports() -> list[str]:
            return [name for name in os.listdir(self._home.path) if name.startswith("exported")]

        until("the exported file", exports)
        self._window.wait_for("Saved as " + str(self._home.path / exports()[0]) + ".")
        for name in exports():
            (self._home.path / name).unlink()

    def clear(self) -> None:
        """Deletes the recorded scans, or nearly."""
        if not self._recorded:
            return
        self._key(PAGES[1])
        self._window.press("Clear Recorded Data…", out_of_sight=True)
        question = "Delete every recorded scan?"
        self._window.wait_for(question)
        count = len(self._recorded)
        self._window.press(f"Delete {count} Recorded Scan" + ("s" if count > 1 else ""))
        self._window.wait_until_gone(question)
        self._recorded = {}
        until("the history's end", lambda: not self._home.history_file.exists())

    def open_recent(self) -> None:
        """The list of scanned repositories, opened and closed."""
        if not self._recorded:
            return
        self._window.press("Scanned repositories")
        self._window.wait_until_focused("Name or path of a repository")
        self._key("Escape")
        self._window.wait_until_gone("Name or path of a repository")

    def _resize(self, width: int, height: int) -> None:
        xdotool("getactivewindow", "windowsize", str(width), str(height))

    def _key(self, keys: str) -> None:
        xdotool("key", "--delay", "0", keys)
