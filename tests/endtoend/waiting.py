"""Waiting that has an end and says what it waited for."""

from __future__ import annotations

import time
from typing import Callable, Optional, TypeVar

Found = TypeVar("Found")

LIMIT_SECONDS = 30.0  # of every wait; far above what a loaded machine with sanitizers needs
STEP_SECONDS = 0.02


class WaitedInVain(AssertionError):
    """Something that was waited for did not come about in time."""


def until(what: str, look: Callable[[], Optional[Found]], limit: float = LIMIT_SECONDS) -> Found:
    """The first true answer of `look`, asked again and again; `WaitedInVain` after `limit`."""
    end = time.monotonic() + limit
    while True:
        answer = look()
        if answer:
            return answer
        if time.monotonic() > end:
            raise WaitedInVain(f"waited {limit:g} s in vain for {what}")
        time.sleep(STEP_SECONDS)
