"""The process behind a bench, and its messages."""

from __future__ import annotations

import json
import os
import queue
import shutil
import subprocess
import tempfile
import threading
from pathlib import Path
from typing import Any, Callable, Dict, IO, List, Optional

from quorlin._errors import ToolGone, Unsupported, error_of

_UNSUPPORTED = 3  # exit code
_LONGEST_END = 90.0  # seconds that a safe end may take


def find_program(given: Optional[str] = None) -> str:
    """The program: as given, by QUORLIN, beside this package, or in PATH."""
    here = Path(__file__).resolve()
    places: List[Optional[str]] = [given, os.environ.get("QUORLIN")]
    for root in list(here.parents)[1:4]:
        places += [str(root / "bin" / "quorlin"), str(root / "build" / "release" / "bin" / "quorlin")]
    places.append(shutil.which("quorlin"))
    for place in places:
        if place and os.access(place, os.X_OK) and os.path.isfile(place):
            return place
        if place and place == given:
            break
    raise ToolGone("There is no program quorlin; name it by program= or QUORLIN.")


class Process:
    """``quorlin serve`` and the two pipes to it.

    One request at a time, but for those that ``at_once`` lets go beside it. The pipe to the process is the
    leash: when it closes, for whatever reason, the process turns RF off and ends.
    """

    def __init__(self, command: List[str], on_note: Callable[[str, Dict[str, Any]], None]) -> None:
        self._on_note = on_note
        self._next_id = 0
        self._lock = threading.Lock()
        self._waiting: Dict[int, "queue.Queue[Dict[str, Any]]"] = {}
        self._ready: "queue.Queue[Optional[Dict[str, Any]]]" = queue.Queue()
        self._words: IO[bytes] = tempfile.TemporaryFile()
        # A session of its own: Ctrl-C is for this interpreter, which leaves its `with` then.
        self._child = subprocess.Popen(
            command,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=self._words,
            start_new_session=True,
        )
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def wait_ready(self, timeout: float) -> Dict[str, Any]:
        """What the tool says of itself when its pages are there."""
        try:
            ready = self._ready.get(timeout=timeout)
        except queue.Empty:
            self.end()
            raise ToolGone("The tool did not start in time.") from None
        if ready is None:
            code = self._child.wait()
            kind = Unsupported if code == _UNSUPPORTED else ToolGone
            raise kind(self.words() or f"The tool ended with exit code {code}.")
        return ready

    def call(self, method: str, params: Dict[str, Any]) -> Dict[str, Any]:
        """Sends a request and waits for its answer, which is bound by the tool's own timeout."""
        answer: "queue.Queue[Dict[str, Any]]" = queue.Queue()
        with self._lock:
            self._next_id += 1
            number = self._next_id
            self._waiting[number] = answer
            message = {"jsonrpc": "2.0", "id": number, "method": method, "params": params}
            self._send(message)
        reply = answer.get()
        if "error" in reply:
            raise error_of(reply["error"])
        result: Dict[str, Any] = reply.get("result", {})
        return result

    def end(self) -> int:
        """Closes the leash and waits for the safe end of the tool; its exit code."""
        assert self._child.stdin is not None
        try:
            self._child.stdin.close()
        except OSError:
            pass
        try:
            code = self._child.wait(timeout=_LONGEST_END)
        except subprocess.TimeoutExpired:
            self._child.kill()
            self._child.wait()
            raise ToolGone("The tool does not end: RF MAY BE ON.") from None
        self._reader.join()
        assert self._child.stdout is not None
        self._child.stdout.close()
        return code

    def words(self) -> str:
        """What the tool has written on standard error so far."""
        self._words.seek(0)
        return self._words.read().decode("utf-8", "replace").strip()

    @property
    def pid(self) -> int:
        return self._child.pid

    def _send(self, message: Dict[str, Any]) -> None:
        assert self._child.stdin is not None
        try:
            self._child.stdin.write(json.dumps(message).encode() + b"\n")
            self._child.stdin.flush()
        except (OSError, ValueError):
            self._waiting.pop(message["id"], None)
            raise ToolGone(self.words() or "The tool has ended.") from None

    def _read(self) -> None:
        assert self._child.stdout is not None
        for line in self._child.stdout:
            try:
                self._take(json.loads(line))
            except (ValueError, KeyError, AttributeError):
                continue
        self._ready.put(None)
        with self._lock:
            waiting, self._waiting = self._waiting, {}
        for answer in waiting.values():
            answer.put({"error": {"code": 5, "message": "The tool has ended."}})

    def _take(self, message: Dict[str, Any]) -> None:
        if message.get("id") is not None:
            with self._lock:
                answer = self._waiting.pop(message["id"], None)
            if answer is not None:
                answer.put(message)
        elif message.get("method") == "ready":
            self._ready.put(message["params"])
        elif "method" in message:
            self._on_note(message["method"], message["params"])
