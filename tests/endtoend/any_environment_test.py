"""Starts of the program in random environments."""

from __future__ import annotations

import os
import random
import subprocess
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from endtoend_case import main, programs
from throw_away_home import ThrowAwayHome
from waiting import LIMIT_SECONDS

STARTS = 1000
HAS_DRAWN = 42  # the status of loadwick-first-frame

HISTORY = """{"version": 1, "scans": [
    {"id": "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A92", "date": "2026-03-04T09:15:27Z", "total": 42318,
     "repositoryName": "webshop", "repositoryPath": "/srv/webshop",
     "categories": [{"name": "System tools", "tokens": 12345}]},
    {"id": "6F1C2B0A-8E55-4C2D-9A61-3B7D1E0F4A93", "date": "2026-03-05T19:15:27Z", "total": 52318,
     "repositoryName": "webshop", "repositoryPath": "/srv/webshop", "categories": []}]}
"""

LOCALE = ("LANG", "LANGUAGE", "LC_ALL", "LC_CTYPE", "LC_MESSAGES", "LC_NUMERIC", "LC_TIME")
FOLDER = (
    "CLAUDE_CONFIG_DIR",
    "TMPDIR",
    "XDG_CACHE_HOME",
    "XDG_CONFIG_HOME",
    "XDG_DATA_HOME",
    "XDG_RUNTIME_DIR",
)
OTHER = (
    "AT_SPI_BUS_ADDRESS",
    "DBUS_SESSION_BUS_ADDRESS",
    "DESKTOP_SESSION",
    "DESKTOP_STARTUP_ID",
    "KDE_FULL_SESSION",
    "LOGNAME",
    "PATH",
    "SHELL",
    "USER",
    "XDG_ACTIVATION_TOKEN",
    "XDG_CONFIG_DIRS",
    "XDG_CURRENT_DESKTOP",
    "XDG_DATA_DIRS",
    "XDG_SESSION_TYPE",
)


class RandomEnvironment:
    """Values of environment variables: as intended, nearly so, and nonsense."""

    def __init__(self, seed: int, home: Path) -> None:
        self._random = random.Random(seed)
        self._home = os.fsencode(home)

    def make(self) -> dict[bytes, bytes]:
        """An environment for a program with this home, which opens its window off screen."""
        chosen = {name: self._locale() for name in self._some(LOCALE)}
        chosen |= {name: self._folder() for name in self._some(FOLDER)}
        chosen |= {name: self._nonsense() for name in self._some(OTHER)}
        if self._random.random() < 0.8:
            chosen["TZ"] = self._time_zone()
        named = {os.fsencode(name): value for name, value in chosen.items()}
        named |= {self._name(): self._nonsense() for _ in range(self._random.randrange(4))}
        return named | {
            b"HOME": self._random.choice([self._home, self._home + b"/", self._home + b"/none"]),
            b"QT_QPA_PLATFORM": b"offscreen",
            b"QT_QUICK_BACKEND": b"software",
        }

    def _some(self, names: tuple[str, ...]) -> list[str]:
        return self._random.sample(names, self._random.randint(0, len(names)))

    def _nonsense(self) -> bytes:
        longest = self._random.choice((3, 12, 200, 5_000, 100_000))
        likely = self._random.choice((b"aZ09_-@.=;:/+,", bytes(range(1, 256))))
        return bytes(self._random.choices(likely, k=self._random.randint(0, longest)))

    def _name(self) -> bytes:
        return b"X" + self._nonsense()[:200].replace(b"=", b"_")

    def _locale(self) -> bytes:
        languages = (b"de", b"ar", b"fil", b"sr", b"zh", b"got", b"iw", b"xx", b"C", b"POSIX")
        territories = (b"", b"_DE", b"_EG", b"_Hans_CN", b"_419", b"_u_nu_none", b"-u-ca-x", b"_")
        ends = (b"", b".UTF-8", b".ISO-8859-1", b".", b"@latin", b"@calendar=none", b"@")
        pieces = [self._random.choice(each) for each in (languages, territories, ends)]
        if self._random.random() < 0.4:
            pieces.insert(self._random.randint(0, 3), self._nonsense())
        return b"".join(pieces)

    def _time_zone(self) -> bytes:
        zones = (
            b"Europe/Berlin",
            b":Asia/Tokyo",
            b"CET-1CEST,M3.5.0,M10.5.0/3",
            b"<+03>-3",
            b"X-999999999",
            b"/etc/group",
            b"../../../../etc/group",
            b"",
        )
        return self._random.choice(zones) + self._random.choice((b"", self._nonsense()))

    def _folder(self) -> bytes:
        """Never outside the home: a folder that is named is also made."""
        name = self._nonsense().replace(b"/", b"_")
        return self._random.choice((b"", b"relative", b"~", self._home + b"/" + name))


def words_of_start(seed: int) -> str:
    """What is wrong with the start in the environment of this seed; nothing if the window drew."""
    with ThrowAwayHome() as home:
        home.history_file.parent.mkdir()
        home.history_file.write_text(HISTORY, encoding="utf-8")
        environment = RandomEnvironment(seed, home.path).make()
        try:
            answer = subprocess.run(
                [programs() / "loadwick-first-frame"],
                env=environment,
                cwd=home.path,
                stdout=subprocess.DEVNULL,
                stderr=subprocess.PIPE,
                timeout=LIMIT_SECONDS,
                check=False,
            )
        except (OSError, subprocess.TimeoutExpired) as failure:
            return f"seed {seed}: {failure}"
    if answer.returncode == HAS_DRAWN:
        return ""
    return f"seed {seed}: status {answer.returncode}, {answer.stderr[-300:]!r}"


class AnyEnvironmentTest(unittest.TestCase):
    """Each start has the random environment of its own seed, and a history with figures and dates."""

    def test_the_window_opens_whatever_the_environment_says(self) -> None:
        with ThreadPoolExecutor(os.cpu_count()) as threads:
            words = threads.map(words_of_start, range(1, STARTS + 1))
            self.assertEqual([each for each in words if each], [])


if __name__ == "__main__":
    main()
