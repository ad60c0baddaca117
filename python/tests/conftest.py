"""What the tests share: the tree's own package, profiles, the journal of the simulated DUT."""

import json
import pathlib
import sys

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "python"))

pytest_plugins = "quorlin.pytest"


class Journal:
    """The calls of the simulated DUT, from the file that it writes."""

    def __init__(self, path: pathlib.Path) -> None:
        self.path = path

    def functions(self):
        names = []
        for line in self.path.read_text().splitlines():
            entry = json.loads(line)
            name = entry.get("function")
            if name and "result" in entry:
                names.append(name)
        return names

    def is_idle(self):
        """Nothing has been started behind the last stop."""
        names = self.functions()
        stops = [i for i, name in enumerate(names) if "TestStop" in name]
        starts = [
            i
            for i, name in enumerate(names)
            if any(part in name for part in ("_ContRxV7", "_RsrpV7", "_SingleToneTx", "_PuschTx"))
        ]
        return not starts or (bool(stops) and stops[-1] > starts[-1])


@pytest.fixture
def journal(tmp_path, monkeypatch):
    path = tmp_path / "journal.jsonl"
    monkeypatch.setenv("VOND_SIM_JOURNAL", str(path))
    return Journal(path)


@pytest.fixture
def faulty(tmp_path):
    """A profile with faults: faulty({"function": ..., "kind": ...})."""

    def make(*faults):
        path = tmp_path / "faulty.json"
        path.write_text(json.dumps({"name": "faulty", "base": "handset", "faults": list(faults)}))
        return str(path)

    return make
