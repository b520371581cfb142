"""What a measurement gives: a value against a goal, over some rounds."""

from __future__ import annotations

import statistics
from dataclasses import dataclass
from typing import Optional


@dataclass
class Row:
    """One line of the table."""

    what: str
    against: str
    values: list[float]  # one for each round
    goal: Optional[float] = None
    bracket: Optional[float] = None
    unit: str = ""  # of the values; ratios have none

    @property
    def median(self) -> float:
        """What counts."""
        return statistics.median(self.values)

    def verdict(self) -> str:
        """Whether the goal holds."""
        if self.goal is None or self.bracket is None:
            return "for comparison"
        if self.median <= self.goal:
            return "holds"
        return "in its bracket" if self.median <= self.bracket else "MISSED"

    def cells(self) -> list[str]:
        """The row as the table shows it."""
        goal = ""
        if self.goal is not None:
            goal = f"{self.goal:g}" + (f" ({self.bracket:g})" if self.bracket != self.goal else "")
        spread = f"{min(self.values):.2f} to {max(self.values):.2f}"
        return [self.what, self.against, f"{self.median:.2f}{self.unit}", spread, goal, self.verdict()]


def ratios(ours: list[float], floor: list[float], part: float = 1.0) -> list[float]:
    """Ours over the floor, round by round."""
    return [mine / other / part for mine, other in zip(ours, floor)]
