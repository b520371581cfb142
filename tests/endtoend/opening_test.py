"""Instruction files in the desktop's programs and file manager: a real handler, a real session bus."""

from __future__ import annotations

import os
from typing import Any, Optional
from urllib.parse import unquote_to_bytes, urlsplit

from gi.repository import GLib

from accessible_tree import Atspi, unless_gone
from bus_service import BusService
from endtoend_case import CHOOSE, SCAN, EndToEndCase, main
from program import Program
from waiting import until

# Records the file that it is given and stays, as an editor does, until the test's home is gone.
HANDLER = """#!/usr/bin/python3
import os, sys, time
with open("{given}", "ab") as record:
    record.write(b"\\0".join(os.fsencode(word) for word in sys.argv[1:]) + b"\\0")
for _ in range(600):
    if not os.path.exists("{given}"):
        break
    time.sleep(0.1)
"""
ENTRY = """[Desktop Entry]
Type=Application
Name=Recorder
Exec={handler} %f
"""
KINDS = ("text/markdown", "text/plain", "application/x-zerosize", "inode/directory")
NAMES = (b"with blanks", b"it's \"quoted\"", b"two\nlines", b"100%20", b"#1?")
NO_PROGRAM = "The desktop names no program for this file."
ODD_KIND = """<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
<mime-type type="application/x-odd"><glob pattern="*.odd"/></mime-type></mime-info>"""
FILE_MANAGER = """<node><interface name="org.freedesktop.FileManager1">
<method name="ShowItems"><arg type="as"/><arg type="s"/></method>
</interface></node>"""


class FileManager(BusService):
    """Records what it is asked to show."""

    name = "org.freedesktop.FileManager1"
    path = "/org/freedesktop/FileManager1"
    interface = FILE_MANAGER

    def __init__(self) -> None:
        super().__init__()
        self.shown: list[str] = []

    def answer(self, method: str, arguments: tuple[Any, ...]) -> Optional[GLib.Variant]:
        self.shown += arguments[0]
        return None


def path_of(url: str) -> bytes:
    """The path in a file's URL."""
    assert url.startswith("file:///") and "\n" not in url, url
    return unquote_to_bytes(urlsplit(url).path)


class OpeningTest(EndToEndCase):
    """The window over repositories of many names, whose files have a program or none."""

    display_height = 2600

    def setUp(self) -> None:
        super().setUp()
        self.given = self.home.path / "given"
        self.given.touch()

    def install_handler(self) -> None:
        """Registers the program that records what it is given."""
        handler = self.home.path / "handler"
        handler.write_text(HANDLER.format(given=self.given))
        handler.chmod(0o755)
        entries = self.home.path / ".local" / "share" / "applications"
        entries.mkdir(parents=True)
        (entries / "recorder.desktop").write_text(ENTRY.format(handler=handler))
        lines = "".join(f"{kind}=recorder.desktop\n" for kind in KINDS)
        (self.home.path / ".config" / "mimeapps.list").write_text(
            "[Default Applications]\n" + lines
        )

    def handed_over(self) -> list[bytes]:
        """The paths that the handler was given so far."""
        return self.given.read_bytes().split(b"\0")[:-1]

    def open_tall(self) -> Program:
        """The window, so high that the whole page is on the bus."""
        # On GNOME, xdg-open asks "gio open", which takes every name.
        program = self.start(environment={"XDG_CURRENT_DESKTOP": "GNOME"})
        program.window.wait_for(CHOOSE, "button")
        program.window.resize(1180, self.display_height - 100)
        return program

    def scanned(self, program: Program, name: bytes) -> bytes:
        """Scans a new repository of that name; returns the path of its only file."""
        folder = self.home.make_repository(name)
        self.choose(program, folder)
        program.window.press(SCAN)
        program.window.wait_for("Scan complete")
        return os.path.join(folder, b"CLAUDE.md")

    def act(self, program: Program, file: bytes, action: str) -> None:
        """Performs an action on the file's row as assistive technology does."""
        start = file.decode("utf-8", "replace") + ". "

        def perform() -> bool:
            for item in program.window.items():
                if not unless_gone(item.get_name, "").startswith(start):
                    continue
                for index in range(Atspi.Action.get_n_actions(item)):
                    if Atspi.Action.get_action_name(item, index) == action:
                        return bool(Atspi.Action.do_action(item, index))
            return False

        until(f"{action} of {file!r}", perform)

    def test_a_file_opens_whatever_its_name(self) -> None:
        self.install_handler()
        program = self.open_tall()
        for count, name in enumerate(NAMES, 1):
            file = self.scanned(program, name)
            self.act(program, file, "Press")
            until(f"{file!r} in the handler", lambda: len(self.handed_over()) == count)
            self.assertEqual(self.handed_over()[-1], file)
        # The handlers still run.
        program.window.key("ctrl+2")
        program.window.wait_for("Recorded data")
        self.assertIsNone(program.window.find(NO_PROGRAM))

    def test_the_menu_shows_a_file_in_its_folder_whatever_its_name(self) -> None:
        desktop = self.enterContext(FileManager())
        program = self.open_tall()
        for count, name in enumerate(NAMES, 1):
            file = self.scanned(program, name)
            self.act(program, file, "ShowMenu")
            program.window.press("Show in Folder")
            until(f"{file!r} in the file manager", lambda: len(desktop.shown) == count)
            self.assertEqual(path_of(desktop.shown[-1]), file)

    def test_trends_shows_the_recorded_data_in_its_folder(self) -> None:
        desktop = self.enterContext(FileManager())
        program = self.open_tall()
        self.scanned(program, b"webshop")
        program.window.key("ctrl+2")
        program.window.wait_for(str(self.home.history_file))
        program.window.press("Show in Folder")
        until("the history in the file manager", lambda: desktop.shown)
        self.assertEqual(path_of(desktop.shown[0]), os.fsencode(self.home.history_file))

    def test_without_a_file_manager_the_folder_opens(self) -> None:
        self.install_handler()
        program = self.open_tall()
        file = self.scanned(program, b"webshop")
        self.act(program, file, "ShowMenu")
        program.window.press("Show in Folder")
        until("the folder in the handler", self.handed_over)
        self.assertEqual(self.handed_over(), [os.path.dirname(file)])

    def test_a_name_that_is_not_utf8_says_so(self) -> None:
        program = self.open_tall()
        file = self.scanned(program, b"caf\xe9")
        self.act(program, file, "Press")
        program.window.wait_for("The name of this file is not UTF-8: no program can be given it.")

    def test_a_desktop_without_a_program_says_so(self) -> None:
        kinds = self.home.path / ".local" / "share" / "mime" / "packages"
        kinds.mkdir(parents=True)
        (kinds / "odd.xml").write_text(ODD_KIND)
        program = self.open_tall()
        folder = self.home.make_repository("webshop", "@rules.odd\n")
        file = os.path.join(folder, b"rules.odd")
        with open(file, "w", encoding="utf-8") as rules:
            rules.write("A rule.\n")
        self.choose(program, folder)
        program.window.press(SCAN)
        program.window.wait_for("imported by \N{LEFT-TO-RIGHT MARK}CLAUDE.md")
        self.act(program, file, "Press")
        program.window.wait_for(NO_PROGRAM)


if __name__ == "__main__":
    main()
