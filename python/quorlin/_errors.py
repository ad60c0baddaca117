"""What can go wrong, each with what the tool said."""

from __future__ import annotations

from typing import Any, Dict, List, Optional


class QuorlinError(Exception):
    """Something that was asked of the tool was not done."""

    def __init__(self, message: str, data: Optional[Dict[str, Any]] = None) -> None:
        super().__init__(message)
        self.data: Dict[str, Any] = data or {}


class RefusedValue(QuorlinError):
    """A name, a value or a press that the tool does not take; ``allowed`` is what it would take."""

    @property
    def reason(self) -> str:
        return str(self.data.get("reason", self))

    @property
    def allowed(self) -> str:
        return str(self.data.get("allowed", ""))


class NotAllowed(QuorlinError):
    """A press that transmits or writes, and nobody has allowed that: ``bench(max_dbm=...)``."""


class TimedOut(QuorlinError):
    """What was waited for has not come in time."""


class Interrupted(QuorlinError):
    """A wait that was ended from outside."""


class ToolGone(QuorlinError):
    """The tool has ended, or did not start."""


class Unsupported(ToolGone):
    """The tool can't run on this DUT."""


class BoxOpened(QuorlinError):
    """A press ended with a message box, in which the tool tells of a failure."""

    def __init__(self, boxes: List[Dict[str, str]], status: str) -> None:
        texts = [
            ": ".join(part for part in (box["title"], box["text"], box["informative"]) if part)
            for box in boxes
        ]
        super().__init__("; ".join(texts), {"boxes": boxes, "status": status})
        self.boxes = boxes
        self.status = status


_BY_CODE = {
    1: RefusedValue,
    2: NotAllowed,
    3: TimedOut,
    4: Interrupted,
    5: ToolGone,
}


def error_of(error: Dict[str, Any]) -> QuorlinError:
    """The exception for the error of an answer."""
    kind = _BY_CODE.get(error.get("code", 0), QuorlinError)
    return kind(str(error.get("message", "")), error.get("data"))
