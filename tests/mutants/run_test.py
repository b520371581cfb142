#!/usr/bin/env -S python3 -B
"""The runner knows every operator, and of a tree with known outcomes it reports them."""

import pathlib
import subprocess
import unittest

HERE = pathlib.Path(__file__).resolve().parent
SAMPLE = HERE.parent / "fixtures" / "mutants"
OUTCOMES = """\
LoadwickCore/sum/Sum.cpp:5 condition: noticed by sum/Sum
LoadwickCore/sum/Sum.cpp:5 relation: cannot be noticed
LoadwickCore/sum/Sum.cpp:10 arithmetic: noticed by sum/Sum
LoadwickCore/sum/Sum.cpp:10 constant: noticed by sum/Sum
LoadwickCore/sum/Sum.cpp:15 arithmetic: noticed by others/Gate
LoadwickCore/sum/Sum.cpp:15 constant: noticed by others/Gate
LoadwickCore/sum/Sum.cpp:20 condition: noticed by sum/Sum (time)
LoadwickCore/sum/Sum.cpp:21 call: survived
LoadwickCore/sum/Sum.cpp:31 arguments: does not compile
LoadwickCore/sum/Sum.cpp:31 constant: noticed by sum/Sum

LoadwickCore/sum/Sum.cpp: call
- pause();
+ ;


folder           planted compiled noticed unnoticeable survived score
sum/                  10        9       7            1        1 87.5 %
all                   10        9       7            1        1 87.5 %
unnoticeable.txt names what is not there: LoadwickCore/sum/Sum.cpp: call
- gone();
+ ;
"""


def run(*arguments):
    """The exit status and what is printed."""
    command = [HERE / "run", "--tree", SAMPLE, "--unnoticeable", SAMPLE / "unnoticeable.txt", *arguments]
    done = subprocess.run(command, stdout=subprocess.PIPE, text=True)
    return done.returncode, done.stdout


class RunnerTest(unittest.TestCase):
    maxDiff = None

    def test_every_operator_finds_its_places_and_no_others(self):
        status, printed = run("--list", "--file", "*/operators/*")
        self.assertEqual(status, 0)
        self.assertEqual(printed, (SAMPLE / "operators.txt").read_text())

    def test_outcomes_are_those_that_the_tree_is_made_for(self):
        status, printed = run("--file", "*/sum/*", "--gates", "--patience", "10")
        if status == 77:
            self.skipTest(printed)
        self.assertEqual(printed, OUTCOMES)
        self.assertEqual(status, 1)

    def test_a_seed_chooses_the_same_mutants_again(self):
        choices = [run("--list", "--count", "5", "--seed", seed)[1] for seed in ("1", "1", "2")]
        self.assertEqual(len(choices[0].splitlines()), 5)
        self.assertEqual(choices[0], choices[1])
        self.assertNotEqual(choices[0], choices[2])


if __name__ == "__main__":
    unittest.main()
