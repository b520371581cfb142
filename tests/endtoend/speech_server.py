"""A speech dispatcher that writes down what it is told to say, and is done with it at once."""

from __future__ import annotations

import re
import socketserver
import threading
from pathlib import Path

INTERRUPTED = "(interrupted)"  # in a transcript: whatever was being said is cut off here
ANSWERS = {
    "HISTORY": ("245-1", "245 OK CLIENT ID SENT"),
    "GET": ("251-0", "251 OK GET RETURNED"),
    "LIST": ("249-transcript en none", "249 OK LIST SENT"),
    "CANCEL": ("210 OK CANCELED",),
    "STOP": ("210 OK STOPPED",),
    "QUIT": ("231 HAPPY HACKING",),
}


class SpeechServer(socketserver.ThreadingUnixStreamServer):
    """Speaks the protocol of Speech Dispatcher, SSIP, on a socket; several clients may connect."""

    daemon_threads = True

    def __init__(self, socket: Path) -> None:
        super().__init__(str(socket), _Client)
        self.transcript: list[str] = []
        threading.Thread(target=self.serve_forever, daemon=True).start()


class _Client(socketserver.StreamRequestHandler):
    server: SpeechServer
    _messages = 0

    def handle(self) -> None:
        for line in self.rfile:
            verb, _, rest = line.decode().strip().partition(" ")
            self._perform(verb.upper(), rest)

    def _perform(self, verb: str, rest: str) -> None:
        if verb == "SPEAK":
            self._answer("230 OK RECEIVING DATA")
            self._say(self._message())
        elif verb in ("CHAR", "KEY"):
            self._say(rest)
        else:
            if verb in ("CANCEL", "STOP"):
                self.server.transcript.append(INTERRUPTED)
            self._answer(*ANSWERS.get(verb, ("200 OK",)))

    def _message(self) -> str:
        """The lines up to a lone full stop, without marks and other markup."""
        lines = []
        for line in self.rfile:
            text = line.decode().rstrip("\r\n")
            if text == ".":
                break
            lines.append(text)
        return re.sub("<[^>]*>", "", " ".join(lines)).strip()

    def _say(self, words: str) -> None:
        self.server.transcript.append(words)
        self._messages += 1
        self._answer(f"225-{self._messages}", "225 OK MESSAGE QUEUED")

    def _answer(self, *lines: str) -> None:
        self.wfile.write("".join(f"{line}\r\n" for line in lines).encode())
