"""A copy of the tree with a build of its own, in which one mutant at a time is built and tested."""

import json
import os
import re
import shutil
import subprocess
import time
from concurrent.futures import ThreadPoolExecutor

# A mutant may signal every process that it sees, leave children behind or fill the memory.
ALONE = ["unshare", "--pid", "--fork", "--kill-child", "--mount-proc"]
if os.getuid() != 0:
    ALONE[1:1] = ["--user", "--map-current-user"]
REAPING = '"$@"; exit $?'  # the first process there waits for orphans
if os.getuid() == 0:  # whose mutants may remove any file, devices too: most are read only to them
    REAPING = f'''copy=$(dirname "$TMPDIR")
        mount --bind "$copy" "$copy" && mount --bind /tmp /tmp && # where GoogleTest keeps what tests print
            mount -o remount,bind,ro / && mount -o remount,bind,ro /dev || exit 1
        {REAPING}'''
REAPING = ["sh", "-c", REAPING, "sh"]
LIMITS = ["prlimit", "--core=0", f"--as={4 << 30}"]
AT_ONCE = 4  # tests, most of which wait


def can_work():
    return subprocess.run([*ALONE, "true"], stderr=subprocess.DEVNULL).returncode == 0


class Copy:
    def __init__(self, arguments, folder, with_app):
        self.patience = arguments.patience
        self.folder = folder
        self.took = {}
        shutil.copytree(arguments.tree, folder, symlinks=True, ignore=shutil.ignore_patterns("build", ".git"))
        self.build = folder / "build"
        self.temporary = folder / "tmp"
        # These let the compiler cache reuse one copy's objects for the next.
        self.environment = os.environ | {"CCACHE_BASEDIR": str(folder), "CCACHE_NOHASHDIR": "1"}
        options = ["CMAKE_BUILD_TYPE=Debug", "CMAKE_CXX_FLAGS_DEBUG=-O1 -D_GLIBCXX_ASSERTIONS", "LOADWICK_COMPILE_QML=OFF"]
        options.append(f"LOADWICK_SANITIZE={arguments.sanitize}")
        # The sanitizers themselves reserve terabytes of addresses.
        self.limits = LIMITS[:2] if arguments.sanitize else LIMITS
        options.append(f"LOADWICK_BUILD_APP={'ON' if with_app else 'OFF'}")
        self._run(["cmake", "-S", folder, "-B", self.build, "-G", "Ninja", *(f"-D{o}" for o in options)])
        listing = ["ctest", "--test-dir", self.build, "--show-only=json-v1"]
        self.tests = json.loads(subprocess.check_output(listing, text=True))["tests"]

    def _run(self, command):
        done = subprocess.run(
            command, env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True
        )
        if done.returncode != 0:
            raise SystemExit(f"{' '.join(map(str, command))}:\n{done.stdout[-4000:]}")

    def programs_of(self, tests):
        """The build's targets that the tests run; ctest does not list what is not built yet."""
        declared = "".join(path.read_text() for path in self.build.glob("**/CTestTestfile.cmake"))
        commands = dict(re.findall(r"^add_test\((?:\[=\[)?(\S+?)(?:\]=\])? (.*)\)$", declared, re.M))
        programs = f'"{self.build}/bin/([^"/]+)"'
        return sorted({name for test in tests for name in re.findall(programs, commands[test])})

    def compiles(self, targets):
        command = ["cmake", "--build", self.build, "--parallel", "2", "--target", *targets]
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True)
        self.log = done.stdout
        return done.returncode == 0

    def _passes(self, test):
        """Whether the test passes; raises subprocess.TimeoutExpired."""
        limit = self.patience + 3 * self.took[test] if test in self.took else 600
        begin = time.monotonic()
        log = self.temporary.with_suffix(f".{test.replace('/', '-')}")
        process = subprocess.Popen(
            [*ALONE, *REAPING, *self.limits, "ctest", "--test-dir", self.build, "--output-on-failure", "-R", f"^{test}$"],
            env=self.environment | {"TMPDIR": str(self.temporary)},
            stdin=subprocess.DEVNULL,
            stdout=log.open("w"),
            stderr=subprocess.STDOUT,
        )
        try:
            has_passed = process.wait(limit) == 0
        finally:
            process.kill()  # and with it all that runs in its namespace
            process.wait()
        if has_passed:
            self.took.setdefault(test, time.monotonic() - begin)
        return has_passed

    def _outcome(self, test):
        """None where the test passes, else what is wrong. A test that waits may fail on a busy machine:
        only one that fails twice counts."""
        try:
            if self.stopped or self._passes(test) or self.stopped or self._passes(test):
                return None
            failure = test
            self.log = (self.folder / f"tmp.{test.replace('/', '-')}").read_text(errors="replace")
        except subprocess.TimeoutExpired:
            failure = f"{test} (time)"
        self.stopped = True
        return failure

    def first_failure(self, tests, begin_with=""):
        """The first of the tests that fails, those named after the mutated file before all others."""
        shutil.rmtree(self.temporary, ignore_errors=True)
        self.temporary.mkdir()
        self.stopped = False
        own = [test for test in tests if begin_with and test.split("/")[-1].startswith(begin_with)]
        for group in (own, [test for test in tests if test not in own]):
            with ThreadPoolExecutor(AT_ONCE) as pool:
                for failure in pool.map(self._outcome, group):
                    if failure:
                        return failure
        return None
