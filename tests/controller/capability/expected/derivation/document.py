"""A page document, written at dotted paths, and what goes wrong with it.

Nothing is ever added to a document but its "modelIntegrity": a path that a page's template does
not hold cannot be written, and an entry that is null counts as not there.
"""

from __future__ import annotations

import copy
import json
from pathlib import Path
from typing import Any

Json = Any  # what json.loads gives
JsonObject = dict[str, Any]


class StepFailed(Exception):
    """A step of an update has reported a failure; the page's later steps are skipped."""


def number(text: str) -> int | float:
    """127.0 is the number 127: a document tells numbers by their value alone."""
    value = float(text)
    return int(value) if value.is_integer() else value


class Document:
    def __init__(self, template: Path) -> None:
        text = template.read_text(encoding="utf-8")
        self.root: JsonObject = json.loads(text, parse_float=number)

    def modify(self, path: str, value: Json) -> bool:
        """Replaces what stands at the path; False, and no change, when nothing stands there."""
        *parents, last = path.split(".")
        place: Json = self.root
        for key in parents:
            place = place.get(key) if isinstance(place, dict) else None
        if not isinstance(place, dict) or place.get(last) is None:
            return False
        place[last] = copy.deepcopy(value)
        return True

    def write(self, paths: list[str], value: Json, message: str) -> None:
        """Replaces at each path in turn; a path that is not there ends the update."""
        for path in paths:
            if not self.modify(path, value):
                self.fail(message)

    def fail(self, message: str) -> None:
        """Enters the message into the record of the update, and ends the update."""
        record = self.root.setdefault("modelIntegrity", {"integrity": False, "messageList": []})
        record["integrity"] = False
        record["messageList"].append(message)
        raise StepFailed(message)
