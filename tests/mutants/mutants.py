"""A mutant, the mutants of a file, and the list of those that nothing can notice."""

import re

from operators import OPERATORS
from source import Source


class Mutant:
    def __init__(self, path, text, operator, start, end, replacement):
        self.path, self.operator = path, operator
        self.line = text.count("\n", 0, start) + 1
        self.mutated = text[:start] + replacement + text[end:]
        first = text.rfind("\n", 0, start) + 1
        last = text.find("\n", end)
        looks_alike = operator in {"early return", "loop exit"} or text.count(text[first - 1 : last + 1]) > 1
        if looks_alike:  # but for the line before
            first = text.rfind("\n", 0, first - 1) + 1
        self.before = " ".join(text[first:last].split())
        self.after = " ".join((text[first:start] + replacement + text[end:last]).split())

    @property
    def key(self):
        """What names it as long as its line stays the same, wherever that moves."""
        return self.path, self.operator, self.before, self.after

    def described(self):
        return f"{self.path}: {self.operator}\n- {self.before}\n+ {self.after}\n"


def mutants_of(path, text):
    """Every mutant of a file, in the order of their places."""
    source = Source(text)
    found = {}  # by the text that results: two operators may come to the same
    for operator in OPERATORS:
        for first, end, replacement in operator(source):
            if not source.is_exempt(first):
                start, stop = source.tokens[first].start, source.tokens[end - 1].end
                if replacement == "":  # a dropped statement keeps its semicolon
                    stop = source.tokens[end].start if source.at(end) != ";" else stop
                name = operator.__name__.replace("_", " ")
                mutant = Mutant(path, text, name, start, stop, replacement)
                found.setdefault("".join(mutant.mutated.split()), (start, mutant))
    return [mutant for _, mutant in sorted(found.values(), key=lambda pair: pair[0])]


def read_list(path, must_have_reasons=True):
    """The entries of a list as {key: reason}. The survivors that a run reports have the same form, without
    a reason: a line "file: operator", the line before and after, and the reason, up to an empty line."""
    entries = {}
    if not path.exists():
        return entries
    for entry in re.split(r"\n\n+", path.read_text().strip()):
        lines = [line for line in entry.splitlines() if not line.startswith("#")]
        if not lines:
            continue
        head, before, after, *reason = lines
        file, operator = head.split(": ")
        if (must_have_reasons and not reason) or before[:2] != "- " or after[:2] != "+ ":
            raise SystemExit(f"{path}: not an entry with a reason:\n{entry}")
        entries[file, operator, before[2:], after[2:]] = " ".join(reason)
    return entries
