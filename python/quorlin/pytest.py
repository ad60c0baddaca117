"""A pytest fixture: ``pytest_plugins = "quorlin.pytest"`` in conftest.py.

    def test_rssi(quorlin_bench):
        page = quorlin_bench.page("RSSI")

The bench is one for the whole session, on the DUT of the command line: ``--quorlin-profile``,
``--quorlin-handle`` or ``--quorlin-link``; with ``--quorlin-max-dbm`` presses may transmit,
``--quorlin-write`` allows Write. RF is off behind each test.
"""

from __future__ import annotations

from typing import Iterator

import pytest

import quorlin


def pytest_addoption(parser: pytest.Parser) -> None:
    group = parser.getgroup("quorlin", "the bench of Quorlin RF")
    group.addoption("--quorlin-profile", help="profile of the simulated DUT")
    group.addoption("--quorlin-handle", type=lambda text: int(text, 0), help="target handle")
    group.addoption("--quorlin-link", help="library that opens the link to the DUT")
    group.addoption("--quorlin-max-dbm", type=float, help="presses may transmit, up to this TX power")
    group.addoption("--quorlin-write", action="store_true", help="Write is allowed")


@pytest.fixture(scope="session")
def quorlin_session(pytestconfig: pytest.Config) -> Iterator[quorlin.Bench]:
    """The bench of the session."""
    option = pytestconfig.getoption
    with quorlin.bench(
        profile=option("--quorlin-profile"),
        handle=option("--quorlin-handle"),
        link=option("--quorlin-link"),
        max_dbm=option("--quorlin-max-dbm"),
        allow_write=option("--quorlin-write"),
    ) as bench:
        yield bench


@pytest.fixture
def quorlin_bench(quorlin_session: quorlin.Bench) -> Iterator[quorlin.Bench]:
    """The same, with RF off behind the test."""
    yield quorlin_session
    quorlin_session.rf_off()
