"""A bench without a person: the pages of Quorlin RF from Python.

    import quorlin
    with quorlin.bench(profile="handset") as bench:
        rsrp = bench.page("RSRP Normal Mode")
        rsrp.set("request.group1.band", "n78")
        rsrp.set("dlFrequency", 3549990)
        with rsrp.running():
            table = rsrp.wait_rows(20)
        assert max(table["BLER(%)"]) < 5

The tool runs in a process of its own, ``quorlin serve``. However ``with`` is left, and also when this
interpreter is killed, that process turns RF off and ends. Names of members are those of a plan:
``request.group1.band``, or ``band`` where that fits one editor alone.
"""

from quorlin._bench import Bench, bench
from quorlin._errors import (
    BoxOpened,
    Interrupted,
    NotAllowed,
    QuorlinError,
    RefusedValue,
    TimedOut,
    ToolGone,
    Unsupported,
)
from quorlin._page import Page, Pressed, Reading, Table

__all__ = [
    "Bench",
    "BoxOpened",
    "Interrupted",
    "NotAllowed",
    "Page",
    "Pressed",
    "QuorlinError",
    "Reading",
    "RefusedValue",
    "Table",
    "TimedOut",
    "ToolGone",
    "Unsupported",
    "bench",
]
