"""A small window above all others, in the upper left corner, from which its arguments, which are
addresses of files, can be dragged."""

from __future__ import annotations

import sys

import gi

for library in ("Gdk", "Gtk"):
    gi.require_version(library, "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402


def hand_over(_source: Gtk.Widget, _context: Gdk.DragContext, data: Gtk.SelectionData, *_: int) -> None:
    """Gives the addresses to where they were dropped."""
    data.set_uris(sys.argv[1:])


def main() -> None:
    """Shows the window until the process is killed."""
    window = Gtk.Window(title="Drag source", accept_focus=False, decorated=False)
    window.set_type_hint(Gdk.WindowTypeHint.DOCK)
    window.set_default_size(40, 40)
    window.move(0, 0)
    window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY)
    window.drag_source_add_uri_targets()
    window.connect("drag-data-get", hand_over)
    window.show_all()
    Gtk.main()


main()
