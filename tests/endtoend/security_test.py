"""A whole session under strace: what the program connects to, and what it sends."""

from __future__ import annotations

import os
import re
from pathlib import Path

from endtoend_case import SCAN, main
from program import Program
from traced_case import TracedCase

TOKEN = "token-of-the-user-3f1c"
# What a session must not inherit, each with a value that is easily found.
SCRUBBED = {
    "ANTHROPIC_API_KEY": "secret-key-88ab",
    "ANTHROPIC_AUTH_TOKEN": "secret-token-12cd",
    "ANTHROPIC_BASE_URL": "https://secret-host-77aa.invalid",
    "CLAUDECODE": "secret-mark-55ee",
    "CLAUDE_CODE_ENTRYPOINT": "secret-entry-66ff",
}
CALLS = "socket,socketpair,connect,bind,listen,sendto,sendmsg,execve"


class Trace:
    """The system calls of a program and all its descendants."""

    def __init__(self, log: str) -> None:
        self._lines = log.splitlines()

    def families(self) -> set[str]:
        """The kinds of sockets that were made."""
        made = (re.search(r"\bsocket(?:pair)?\((\w+),", line) for line in self._lines)
        return {found[1] for found in made if found}

    def addresses(self) -> set[str]:
        """The kinds of addresses that were connected to."""
        return {kind for line in self._lines for kind in re.findall(r"sa_family=(\w+)", line)}

    def started(self, program: str) -> list[str]:
        """The calls that started a program whose path has this ending, environment included."""
        return [line for line in self._lines if re.search(rf'execve\("[^"]*{program}"', line)]


class SecurityTest(TracedCase):
    """One session, from the choice of a folder to the closed window."""

    def trace_a_session(self, outcome: str, words: str) -> Trace:
        """Scans once, looks at every page and closes the window."""
        program = self.open_traced(CALLS, CLAUDE_CODE_OAUTH_TOKEN=TOKEN, **SCRUBBED)
        self.use(program, outcome, words)
        return Trace(self.close_traced(program))

    def use(self, program: Program, outcome: str, words: str) -> None:
        """What a user does with the window."""
        self.home.play(outcome)
        self.choose(program, self.home.make_repository("webshop"))
        program.window.press(SCAN)
        program.window.wait_for(words)
        for page in ("ctrl+2", "ctrl+3", "ctrl+1"):
            program.window.key(page)
            self.assert_no_secret("\n".join(program.window.texts()), page)

    def assert_no_secret(self, text: str, where: str) -> None:
        """Expects neither the user's secrets nor the token in the text."""
        for value in (TOKEN, *SCRUBBED.values()):
            self.assertNotIn(value, text, where)

    def kept(self) -> dict[str, bytes]:
        """Every file below the home, transcripts of the session included."""
        files = (Path(folder, name) for folder, _, names in os.walk(self.home.path)
                 for name in names)
        return {str(file): file.read_bytes() for file in files if file.is_file()}

    def assert_private(self, trace: Trace) -> None:
        """Expects no connection but to the desktop, and the user's secrets in no session or file."""
        self.assertEqual(trace.families(), {"AF_UNIX"})
        self.assertEqual(trace.addresses(), {"AF_UNIX"})
        sessions = trace.started("/claude")
        self.assertEqual(len(sessions), 1)
        self.assertIn(f'"CLAUDE_CODE_OAUTH_TOKEN={TOKEN}"', sessions[0])
        for name, value in SCRUBBED.items():
            self.assertNotIn(f'"{name}=', sessions[0])
            self.assertNotIn(value, sessions[0])
        for file, content in self.kept().items():
            self.assert_no_secret(content.decode(errors="replace"), file)

    def test_a_scan_that_succeeds_stays_on_this_machine_and_keeps_no_secret(self) -> None:
        self.assert_private(self.trace_a_session("transcript", "Scan complete"))
        self.assertEqual(len(self.home.scans()), 1)

    def test_a_scan_that_fails_stays_on_this_machine_and_keeps_no_secret(self) -> None:
        self.assert_private(self.trace_a_session("failed", "Scan failed"))
        self.assertEqual(self.home.scans(), [])


if __name__ == "__main__":
    main()
