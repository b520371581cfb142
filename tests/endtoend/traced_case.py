"""A test whose program runs under strace."""

from __future__ import annotations

import os
import re

from endtoend_case import CHOOSE, EndToEndCase
from program import Program
from waiting import until


class TracedCase(EndToEndCase):
    """Opens the window and logs the system calls that it and its children make."""

    def setUp(self) -> None:
        super().setUp()
        self.log = self.home.path.with_name(self.home.path.name + ".trace")
        self.addCleanup(lambda: self.log.unlink(missing_ok=True))

    def open_traced(self, calls: str, **environment: str) -> Program:
        """Opens the window; the named calls are logged."""
        tracer = ["strace", "-D", "-f", "--seccomp-bpf", "-q", "-v", "-s", "65536"]
        tracer += ["-e", f"trace={calls}", "-e", "signal=none", "-o", str(self.log)]
        # The leak checker is itself a tracer, and a process can have only one.
        environment["ASAN_OPTIONS"] = os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
        program = self.start(tracer=tracer, environment=environment)
        program.window.wait_for(CHOOSE, "button")
        return program

    def close_traced(self, program: Program) -> str:
        """Closes the window; returns the log. The tracer outlives the program."""
        self.assertEqual(program.close(), 0)
        end = f"{program.process.pid} +++ exited with 0 +++"
        until("the trace's end", lambda: end in re.sub(" +", " ", self.read_log()))
        return self.read_log()

    def read_log(self) -> str:
        """The calls so far."""
        return self.log.read_text(encoding="utf-8", errors="replace")
