"""A program that starts another one, as the desktop's launchers do: by its desktop entry, with the
permission to raise its window. It starts the entry that is its argument whenever Return is
pressed."""

from __future__ import annotations

import sys

import gi

for library in ("Gdk", "Gtk"):
    gi.require_version(library, "3.0")
from gi.repository import Gdk, Gio, GLib, Gtk  # noqa: E402


def launch() -> None:
    """Starts the program."""
    context = Gdk.Display.get_default().get_app_launch_context()
    Gio.DesktopAppInfo.new_from_filename(sys.argv[1]).launch([], context)


def follow_key(_window: Gtk.Window, event: Gdk.EventKey) -> None:
    """Starts the program on Return."""
    if event.keyval == Gdk.KEY_Return:
        launch()


def main() -> None:
    """Shows a window until it is closed."""
    GLib.set_prgname("launcher")
    window = Gtk.Window(title="Launcher")
    window.set_default_size(400, 300)
    window.connect("key-press-event", follow_key)
    window.connect("destroy", Gtk.main_quit)
    window.show_all()
    Gtk.main()


main()
