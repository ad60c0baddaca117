"""The tool as a context manager."""

from __future__ import annotations

import os
import time
from types import TracebackType
from typing import Any, Callable, Dict, List, Optional, Type, Union

from quorlin._errors import QuorlinError
from quorlin._page import DEFAULT_TIMEOUT, Page
from quorlin._process import Process, find_program

Note = Callable[[str, Dict[str, Any]], None]


class Bench:
    """The tool on one DUT. Made by :func:`bench`; a context manager."""

    def __init__(self, command: List[str], timeout: float, on_note: Optional[Note]) -> None:
        self._process = Process(command, on_note or (lambda method, params: None))
        self._is_closed = False
        ready = self._process.wait_ready(timeout)
        self.tool: str = ready["tool"]
        self.version: str = ready["version"]
        self.chip: str = ready["chip"]
        self.handle: int = ready["handle"]
        self.pages: List[str] = [page["title"] for page in ready["pages"]]

    def __enter__(self) -> "Bench":
        return self

    def __exit__(
        self,
        kind: Optional[Type[BaseException]],
        error: Optional[BaseException],
        trace: Optional[TracebackType],
    ) -> None:
        try:
            self.close()
        except QuorlinError:
            if error is None:
                raise

    def page(self, name: str) -> Page:
        """A page by its title or class name."""
        return Page(self._process, name)

    def wait(self, seconds: float) -> None:
        """Waits; what runs on the DUT goes on, and the tool with it."""
        end = time.monotonic() + seconds
        self._process.call("wait", {"time": max(0.0, end - time.monotonic())})

    def rf_off(self, timeout: float = DEFAULT_TIMEOUT) -> None:
        """Stops every test on the DUT, at once, whatever another thread waits for."""
        self._process.call("rfOff", {"timeout": timeout})

    def close(self) -> None:
        """RF off, and the end of the tool; safe to call twice."""
        if self._is_closed:
            return
        self._is_closed = True
        code = self._process.end()
        if code != 0:
            raise QuorlinError(self._process.words() or f"The tool ended with exit code {code}.")

    @property
    def pid(self) -> int:
        """Of the tool's process."""
        return self._process.pid


def bench(
    profile: Optional[str] = None,
    handle: Optional[int] = None,
    link: Optional[Union[str, "os.PathLike[str]"]] = None,
    *,
    max_dbm: Optional[float] = None,
    allow_write: bool = False,
    plugin: Optional[str] = None,
    scenario: Optional[Union[str, "os.PathLike[str]"]] = None,
    program: Optional[str] = None,
    timeout: float = DEFAULT_TIMEOUT,
    on_note: Optional[Note] = None,
) -> Bench:
    """Opens the tool on a DUT: a profile of the simulated one, a target handle, or a link library.

    max_dbm: presses that transmit are allowed, up to this TX power. allow_write: Write is allowed.
    program: ``quorlin``, if it is not found by itself. on_note: called on another thread for each status
    line, busy and box. scenario: what happens to the simulated DUT, a name or a file.
    """
    command = [find_program(program), "serve"]
    for option, value in (
        ("--profile", profile),
        ("--handle", handle),
        ("--link", link),
        ("--plugin", plugin),
        ("--scenario", scenario),
    ):
        if value is not None:
            command += [option, os.fspath(value) if isinstance(value, os.PathLike) else str(value)]
    if max_dbm is not None:
        command += ["--allow-transmit", f"--max-dbm={max_dbm}"]
    if allow_write:
        command.append("--allow-write")
    return Bench(command, timeout, on_note)
