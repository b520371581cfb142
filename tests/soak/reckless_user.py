"""A user who does anything at all."""

from __future__ import annotations

import os
import random
import signal
import subprocess
from collections import deque
from pathlib import Path
from typing import Callable, Optional

from accessible_tree import AccessibleTree, Atspi, role_of, unless_gone
from endtoend_case import CHOOSE, window_command
from heartbeat import Heartbeat
from processes import end_with_parent, is_running
from program import Program, environment_for
from settings_portal import SettingsPortal
from throw_away_home import ThrowAwayHome
from waiting import LIMIT_SECONDS, WaitFailed, until

OPTIONS = ("--follow-desktop", "--platform-dialog", "--timeout", "3")
SCREEN = (1280, 1000)
OUTCOMES = (
    *("transcript", "usage", "many-turns", "unknown-turns", "nothing", "failed", "signed-out"),
    *("plain-text", "hang", "stubborn"),
)
KEYS = (
    *("Tab", "shift+Tab", "Return", "space", "Escape", "BackSpace", "Delete", "Menu", "shift+F10"),
    *("Up", "Down", "Left", "Right", "Prior", "Next", "Home", "End", "F6", "shift+F6", "F1"),
    *("ctrl+o", "ctrl+r", "ctrl+r", "ctrl+1", "ctrl+2", "ctrl+3", "ctrl+c", "ctrl+v", "ctrl+a"),
    *("alt+n", "alt+Up", "ctrl+Tab", "shift+Down", "shift+End"),
)
TEXTS = ("webshop", "a", "/", "..", "%s%n", "\N{SNOWMAN}", "<b>", "file:///", "x" * 300)
JUNK = (b"", b"{", b"null", b'{"version": 9}', b"\xff\xfe" * 500, b'{"version": 1, "scans": [{}]}')


def statuses_of(number: signal.Signals) -> tuple[int, ...]:
    """With what the program may end where it gets this signal."""
    return (0, 128 + number, -number)


class RecklessUser:
    """Acts on one program after the other. `actions` holds the last fifty things that were done."""

    def __init__(self, home: ThrowAwayHome, chance: random.Random, portal: SettingsPortal) -> None:
        self.actions: deque[str] = deque(maxlen=50)
        self.count = 0
        self.slowest = 0.0
        self.log = home.path / "said"
        self._home = home
        self._chance = chance
        self._portal = portal
        self._folders = [home.make_repository(name) for name in ("webshop", "notes", b"caf\xe9")]
        self._program: Optional[Program] = None
        self._kinds: dict[Callable[[], str], float] = {
            self.press_anything: 30,
            self.press_key: 30,
            self.use_pointer: 20,
            self.type: 4,
            self.focus_anything: 5,
            self.drop: 3,
            self.resize: 3,
            self.change_setting: 3,
            self.play: 4,
            self.kill_session: 2,
            self.spoil_history: 0.5,
            self.minimise: 0.5,
            self.activate: 3,
            self.start_again: 0.5,
            self.end: 0.3,
        }
        addresses = [Path(os.fsdecode(folder)).as_uri() for folder in self._folders]
        self._drag_source = subprocess.Popen(
            ["/usr/bin/python3", "-B", str(Path(__file__).with_name("drag_source.py")), *addresses[:1]],
            env=self._environment(),
            preexec_fn=end_with_parent,
            stderr=subprocess.DEVNULL,
        )

    def _environment(self) -> dict[str, str]:
        return environment_for(self._home.path) | {"TMPDIR": str(self._home.path)}

    def _running(self) -> Program:
        if self._program is None:
            self._program = Program(window_command(*OPTIONS), self._environment(), self.log)
            self._program.window.wait_for(CHOOSE, "button")
            self._heartbeat = Heartbeat(self._program.process.pid)
        return self._program

    def act(self) -> None:
        """One action at random; then the program runs, or has ended as it should."""
        self._running()
        [kind] = self._chance.choices(list(self._kinds), list(self._kinds.values()))
        self.actions.append(kind.__name__)
        self.actions[-1] += " " + kind()
        self.count += 1
        self.slowest = max(self.slowest, self._heartbeat.slowest)
        if self._running().process.poll() is not None:
            self._bury((0,))

    def finish(self) -> None:
        """Ends the program as a user does who logs out."""
        self._end_by(signal.SIGTERM)
        self._drag_source.kill()
        self._drag_source.wait()

    def _end_by(self, number: signal.Signals) -> None:
        process = self._running().process
        process.send_signal(number)
        process.wait(LIMIT_SECONDS)
        self._bury(statuses_of(number))

    def _bury(self, statuses: tuple[int, ...]) -> None:
        status = self._running().process.poll()
        self.slowest = max(self.slowest, self._heartbeat.stop())
        self._program = None
        assert status in statuses, f"the program ended with status {status}"

    def press_anything(self) -> str:
        item = self._running().window.anything(self._chance)
        count = unless_gone(lambda: Atspi.Action.get_n_actions(item), 0)
        name = f"{role_of(item)} {unless_gone(item.get_name, '')!r}"
        if count > 0:
            action = self._chance.randrange(count)
            unless_gone(lambda: Atspi.Action.do_action(item, action), False)
            return f"{name}, action {action}"
        return f"{name}, which has no action"

    def focus_anything(self) -> str:
        item = self._running().window.anything(self._chance)
        unless_gone(lambda: Atspi.Component.grab_focus(item), False)
        return f"{role_of(item)} {unless_gone(item.get_name, '')!r}"

    def press_key(self) -> str:
        key = self._chance.choice(KEYS)
        if self._chance.random() < 0.01:
            key = self._chance.choice(("ctrl+q", "ctrl+w", "alt+F4"))
        count = self._chance.choice((1, 1, 1, 5, 20))
        return self._xdotool("key", "--delay", "0", "--repeat", str(count), key)

    def type(self) -> str:
        return self._xdotool("type", "--delay", "0", self._chance.choice(TEXTS))

    def use_pointer(self) -> str:
        button = str(self._chance.choice((1, 1, 1, 2, 3, 4, 5, 5)))
        count = str(self._chance.choice((1, 1, 2, 3)))
        to = [*self._somewhere(), "mouseup", "1"] if self._chance.random() < 0.2 else ["mouseup", "1"]
        click = ["click", "--delay", "0", "--repeat", count, button]
        drag = ["mousedown", "1", *(["mousemove", *to] if len(to) > 2 else to)]
        return self._xdotool("mousemove", *self._somewhere(), *self._chance.choice((click, drag)))

    def _somewhere(self) -> list[str]:
        return [str(self._chance.randrange(size)) for size in SCREEN]

    def drop(self) -> str:
        steps = [word for _ in range(4) for word in ("mousemove", *self._somewhere(), "sleep", "0.02")]
        return self._xdotool("mousemove", "20", "20", "mousedown", "1", *steps, "mouseup", "1")

    def resize(self) -> str:
        size = self._chance.choice(((1, 1), (960, 640), (1180, 780), (1270, 980), (4000, 300)))
        return self._xdotool("getactivewindow", "windowsize", *map(str, size))

    def minimise(self) -> str:
        return self._xdotool("getactivewindow", "windowminimize")

    def activate(self) -> str:
        return self._xdotool("search", "--name", "Loadwick", "windowactivate")

    def change_setting(self) -> str:
        return self._portal.change(self._chance)

    def play(self) -> str:
        outcome = self._chance.choice(OUTCOMES)
        self._home.play(outcome, cache_creation=self._chance.randrange(200_000))
        self._home.will_choose(self._chance.choice(self._folders))
        return outcome

    def kill_session(self) -> str:
        session = self._home.runs()[-1] if self._home.runs() else 0
        if not session or not is_running(session):
            return "that has ended"
        os.kill(session, self._chance.choice((signal.SIGKILL, signal.SIGTERM, signal.SIGSTOP)))
        return str(session)

    def spoil_history(self) -> str:
        self._home.history_file.parent.mkdir(parents=True, exist_ok=True)
        junk = self._chance.choice(JUNK)
        self._home.history_file.write_bytes(junk)
        return repr(junk[:20])

    def start_again(self) -> str:
        first = self._running().process
        with open(self.log, "ab") as log:
            second = subprocess.Popen(
                window_command(*OPTIONS),
                env=self._environment(),
                stdout=subprocess.PIPE,
                stderr=log,
                preexec_fn=end_with_parent,
            )
        until("an answer", lambda: second.poll() is not None or first.poll() is not None)
        statuses = (0,) if second.poll() is not None else self._end_successor(second)
        words = second.communicate(timeout=LIMIT_SECONDS)[0].decode().strip()
        assert second.returncode in statuses, f"the second start ended with {second.returncode}"
        return words

    def _end_successor(self, second: subprocess.Popen[bytes]) -> tuple[int, ...]:
        """Ends a second start that opens a window, as an earlier key has closed the first."""
        try:
            AccessibleTree(second.pid)
        except WaitFailed:  # the first has answered before its end
            return (0,)
        second.terminate()
        return statuses_of(signal.SIGTERM)

    def end(self) -> str:
        number = self._chance.choice((signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGKILL))
        self._end_by(number)
        self._running()
        return number.name

    def _xdotool(self, *words: str) -> str:
        # It fails where no window is active.
        subprocess.run(["xdotool", *words], check=False, capture_output=True, timeout=LIMIT_SECONDS)
        return " ".join(words)
