"""Waits with a time limit; a failure names what was waited for."""

from __future__ import annotations

import time
from typing import Callable, Optional, TypeVar

Found = TypeVar("Found")

LIMIT_SECONDS = 30.0  # of every wait; far more than a loaded machine with sanitizers needs
STEP_SECONDS = 0.02


class WaitFailed(AssertionError):
    """A wait timed out, or what it waited for can no longer happen."""


def until(what: str, look: Callable[[], Optional[Found]], limit: float = LIMIT_SECONDS) -> Found:
    """Polls `look` and returns its first true result; raises `WaitFailed` after `limit`."""
    end = time.monotonic() + limit
    while True:
        answer = look()
        if answer:
            return answer
        if time.monotonic() > end:
            raise WaitFailed(f"timed out after {limit:g} s waiting for {what}")
        time.sleep(STEP_SECONDS)
