"""A page of the tool."""

from __future__ import annotations

import contextlib
from dataclasses import dataclass
from typing import Any, Dict, Iterator, List, Optional, Tuple, Union

from quorlin._errors import BoxOpened
from quorlin._process import Process

Value = Union[str, int, float, bool]
Reading = Union[str, int, float]

DEFAULT_TIMEOUT = 60.0  # seconds


def _reading(text: str) -> Reading:
    """A number where the text is one, as the tool's own digits say it."""
    for kind in (int, float):
        try:
            return kind(text)
        except ValueError:
            continue
    return text


class Table(Dict[str, List[Reading]]):
    """The rows of a result table: readings by the captions of their columns, oldest first.

    ``units`` has the units by caption, ``rows`` the captions of the rows.
    """

    def __init__(self, table: Optional[Dict[str, Any]]) -> None:
        table = table or {"columns": [], "values": [], "rows": [], "units": []}
        super().__init__(
            (caption, [_reading(row[column]) for row in table["values"]])
            for column, caption in enumerate(table["columns"])
        )
        self.units: Dict[str, str] = dict(zip(table["columns"], table["units"]))
        self.rows: List[str] = table["rows"]


@dataclass
class Pressed:
    """How a press ended."""

    status: str  #: the status line
    boxes: List[Dict[str, str]]  #: title, text, informative, detail of each box
    seconds: float


class Page:
    """A page, found by its title or class name. See :mod:`quorlin` for names of members."""

    def __init__(self, process: Process, name: str) -> None:
        self._process = process
        self._name = name
        self.description()  # is it there?

    def __repr__(self) -> str:
        return f"Page({self._name!r})"

    def description(self) -> Dict[str, Any]:
        """Buttons, members and tables as they are now, by docs/describe.schema.json."""
        page: Dict[str, Any] = self._call("describe")["page"]
        return page

    def set(self, *pairs: Value, **values: Value) -> None:
        """Types values into editors, in order: ``set("request.group1.band", "n78")``,
        ``set(band="n78", dlFrequency="max")``. RefusedValue says what would be taken."""
        if len(pairs) % 2 != 0:
            raise TypeError("set takes names and values in turn")
        entries: List[Tuple[str, Value]] = list(zip(map(str, pairs[::2]), pairs[1::2]))
        entries += values.items()
        listed = [{"name": name, "value": value} for name, value in entries]
        self._call("set", values=listed)

    def get(self, name: str) -> Union[Reading, List[Reading]]:
        """A value: of the response, then of data, a column of the results, or any member by its whole name.
        A list for a column, and for a row of cells."""
        found = self._call("get", name=name)
        readings = [_reading(text) for text in found["values"]]
        return readings if found["column"] or len(readings) != 1 else readings[0]

    def values(self) -> Dict[str, Union[str, List[str]]]:
        """All members as packaged now, by their whole names."""
        values: Dict[str, Union[str, List[str]]] = self._call("get")["values"]
        return values

    def table(self) -> Table:
        """The result table that is shown."""
        return Table(self._call("get")["results"])

    def press(
        self, button: str, timeout: float = DEFAULT_TIMEOUT, box: Optional[str] = None
    ) -> Pressed:
        """Presses a button and waits until the tool is idle. A box raises BoxOpened, unless ``box`` is in its
        title or text."""
        return self._pressed(self._call("press", button=button, timeout=timeout), box)

    def export(self, file: str, timeout: float = DEFAULT_TIMEOUT) -> Pressed:
        """Presses Export and names the file."""
        return self._pressed(self._call("export", file=str(file), timeout=timeout), None)

    def import_(self, file: str, timeout: float = DEFAULT_TIMEOUT) -> Pressed:
        """Presses Import and names the file."""
        return self._pressed(self._call("import", file=str(file), timeout=timeout), None)

    def wait_rows(self, rows: int, timeout: float = DEFAULT_TIMEOUT) -> Table:
        """Waits for that many rows of results."""
        return Table(self._call("wait", rows=rows, timeout=timeout)["results"])

    @contextlib.contextmanager
    def running(
        self, start: str = "Start", stop: str = "Stop", timeout: float = DEFAULT_TIMEOUT
    ) -> Iterator["Page"]:
        """Starts, and stops however the block is left; the stop does not hide what went wrong inside."""
        self.press(start, timeout)
        try:
            yield self
        except BaseException:
            with contextlib.suppress(Exception):
                self.press(stop, timeout)
            raise
        self.press(stop, timeout)

    def _call(self, method: str, **params: Any) -> Dict[str, Any]:
        return self._process.call(method, {"page": self._name, **params})

    @staticmethod
    def _pressed(result: Dict[str, Any], box: Optional[str]) -> Pressed:
        unnamed = [
            one
            for one in result["boxes"]
            if box is None or not (box in one["title"] or box in one["text"])
        ]
        if unnamed:
            raise BoxOpened(unnamed, result["status"])
        return Pressed(result["status"], result["boxes"], result["ms"] / 1000)
