#!/usr/bin/env python3
"""Cuts the power of a calibration write in each block, and sees whether flash can always be mended.

    tools/powercut.py --quorlin build/release/bin/quorlin [--profile handset] [--item apt] [--sample 8]

For each block n of a full image, with the block torn and without: the DUT loses its power in block n of
"quorlin cal write", a new process plugs it in, and then
    "quorlin cal restore" of the backup has to give the old flash, and
    "quorlin cal write" once more has to give the new one,
byte for byte of all records in the flash file, whatever state the cut has left. What the cut write says of its records
is held against the flash file, too: what it calls written holds the new bytes, what it calls not written
the old ones.

Prints a line a case that fails, and a summary with the number of different states that cuts have left.
Exit code 0: all held. Two cases run at a time. With --sample N, N blocks are taken at equal distances,
the first and the last among them.
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile

STEP = 0.03125  # dB, one step of the wire

# The flash file of the simulated DUT: a head, then records, each with a head and its blocks.
HEAD_BYTES = 24
RECORD_HEAD_BYTES = 16
BLOCK_BYTES = {1: 1108, 2: 18260, 3: 452}  # by the kind of record: type 1, type 2, TX

GAINS = re.compile(r"^((?:RX|Tx compensation pa gain pa) ?[^=]*?) = (-?\d+\.\d{5}(?:,-?\d+\.\d{5}){63})$")


class Bench:
    """Runs quorlin cal on one profile, each call on a flash file of its own folder."""

    def __init__(self, quorlin, profile, item):
        self.quorlin = quorlin
        self.profile = profile
        self.item = item

    def profile_with(self, fault):
        if isinstance(self.profile, pathlib.Path):
            profile = json.loads(self.profile.read_text(encoding="utf-8"))
        else:
            profile = {"base": self.profile}
        return {**profile, "name": "cut", "faults": [*profile.get("faults", []), fault]}

    def run(self, folder, *arguments, profile=None):
        """A call on folder/flash. Returns the exit code and all that was said."""
        environment = dict(
            os.environ,
            VOND_SIM_FLASH=str(folder / "flash"),
            VOND_SIM_PROFILE=str(profile or self.profile),
            XDG_RUNTIME_DIR=str(folder),
            XDG_DATA_HOME=str(folder / "data"),
        )
        done = subprocess.run(
            [self.quorlin, "cal", *map(str, arguments)],
            cwd=folder, env=environment, stdin=subprocess.DEVNULL, capture_output=True, text=True,
            timeout=300, check=False)
        return done.returncode, done.stdout + done.stderr

    def must(self, folder, *arguments):
        code, said = self.run(folder, *arguments)
        if code != 0:
            sys.exit(f"{' '.join(map(str, arguments))}: exit code {code}\n{said}")

    def write(self, folder, file, **options):
        return self.run(folder, "write", "--item", self.item, "--from", file, "--yes",
                        "--backup", folder / "kept", **options)


def changed(line):
    """A line of an INI file with each gain or loss one step nearer to 0, or one step from it."""
    found = GAINS.match(line)
    if not found:
        return line
    values = [float(text) for text in found[2].split(",")]
    moved = [value - STEP if value > 0 else value + STEP for value in values]
    return f"{found[1]} = " + ",".join(f"{value:.5f}" for value in moved)


def change_file(source, target):
    lines = source.read_text(encoding="utf-8-sig").splitlines()
    after = [changed(line) for line in lines]
    if after == lines:
        sys.exit(f"{source}: nothing to change")
    target.write_text("\n".join(after) + "\n", encoding="utf-8")


def blocks_of(backup):
    records = json.loads(backup.read_text(encoding="utf-8"))["records"]
    return sum(len(record["blocks"]) for record in records)


def flash_of(path):
    """The records of a flash file, as bytes by their names. A record's mark that a cut was in it, which the
    simulated DUT keeps beside it, is no part of it."""
    data = path.read_bytes()
    records = {}
    at = HEAD_BYTES
    while at < len(data):
        kind, route, bandwidth, count = struct.unpack_from("<IIII", data, at)
        at += RECORD_HEAD_BYTES
        size = BLOCK_BYTES[kind & 0xff] * count
        records[kind & 0xff, route, bandwidth] = data[at:at + size]
        at += size
    return records


def prepare(bench, folder):
    """folder/old and folder/new: flash files before and behind a full write; folder/new.ini: its file."""
    bench.must(folder, "read", "--item", bench.item, "--to", folder / "old.ini")
    change_file(folder / "old.ini", folder / "new.ini")
    bench.must(folder, "read", "--item", bench.item, "--to", folder / "old.json")
    code, said = bench.write(folder, folder / "new.ini")
    if code != 0:
        sys.exit(said)
    bench.must(folder, "read", "--item", bench.item, "--to", folder / "new.json")
    bench.must(folder, "restore", folder / "old.json", "--yes", "--backup", folder / "kept")
    shutil.copy(folder / "flash", folder / "old")
    bench.write(folder, folder / "new.ini")
    shutil.copy(folder / "flash", folder / "new")


def statements(said, head):
    """The records that a line of the write's outcome names; of a long list the ones that it shows."""
    for line in said.splitlines():
        if line.startswith(head):
            return re.sub(r" and \d+ more\.$|\.$", "", line[len(head):]).split(", ")
    return []


def false_statements(folder, base, said):
    """Names of records that are not as the write has said."""
    now, old, new = (records_by_name(path) for path in
                     (folder / "now.json", base / "old.json", base / "new.json"))
    written = statements(said, "Written, as wanted: ") + statements(said, "Accepted by the DUT: ")
    kept = statements(said, "Not written, as before: ")
    return ([name for name in written if now[name] != new[name]] +
            [name for name in kept if now[name] != old[name]])


def records_by_name(path):
    """The blocks of a backup's records, by the names that a write has for them."""
    document = json.loads(path.read_text(encoding="utf-8"))
    named = {}
    for record in document["records"]:
        name = f"{record['kind']} route {record['route']}"
        for route in document["routes"]:
            regions = route.get("regions", [])
            if (route["kind"], route["route"]) == (record["kind"], record["route"]) and \
                    record.get("bandwidth") in regions:
                named[f"{name} BW{regions.index(record['bandwidth'])}"] = record["blocks"]
        named[name] = record["blocks"]
    return named


def explore(bench, base, case):
    """One cut. Returns the state that it left, and what went wrong, if anything."""
    block, torn = case
    wrong = []
    with tempfile.TemporaryDirectory(dir=base) as name:
        folder = pathlib.Path(name)
        cut = folder / "cut.json"
        cut.write_text(json.dumps(bench.profile_with(
            {"kind": "powerCut", "block": block, "torn": torn})), encoding="utf-8")
        shutil.copy(base / "old", folder / "flash")
        code, said = bench.write(folder, base / "new.ini", profile=cut)
        state = (folder / "flash").read_bytes()
        if code == 0:
            wrong.append("the cut write calls itself verified")
        backups = list((folder / "kept").glob("*.json"))
        if len(backups) != 1:
            return state, wrong + [f"{len(backups)} backups\n{said}"]
        bench.must(folder, "read", "--item", bench.item, "--to", folder / "now.json")
        for record in false_statements(folder, base, said):
            wrong.append(f"{record} is not as told\n{said}")
        code, said = bench.run(folder, "restore", backups[0], "--yes", "--backup", folder / "again")
        if code != 0 or flash_of(folder / "flash") != flash_of(base / "old"):
            wrong.append(f"restore: exit code {code}, flash is not the old one\n{said}")
        (folder / "flash").write_bytes(state)
        code, said = bench.write(folder, base / "new.ini")
        if code != 0 or flash_of(folder / "flash") != flash_of(base / "new"):
            wrong.append(f"write once more: exit code {code}, flash is not the new one\n{said}")
    return state, wrong


def sampled(count, most):
    if not most or most >= count:
        return range(1, count + 1)
    return sorted({1 + round(i * (count - 1) / (most - 1)) for i in range(most)})


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--quorlin", required=True, type=pathlib.Path)
    parser.add_argument("--profile", default="handset")
    parser.add_argument("--item", default="apt", choices=["apt", "rx-path-loss"])
    parser.add_argument("--sample", type=int, default=0, metavar="N")
    given = parser.parse_args()
    profile = pathlib.Path(given.profile)
    bench = Bench(given.quorlin.resolve(), profile.resolve() if profile.exists() else given.profile,
                  given.item)
    with tempfile.TemporaryDirectory() as name:
        base = pathlib.Path(name)
        prepare(bench, base)
        blocks = blocks_of(base / "old.json")
        cases = [(n, torn) for n in sampled(blocks, given.sample) for torn in (False, True)]
        states, failed = set(), 0
        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            for case, (state, wrong) in zip(cases, pool.map(
                    lambda case: explore(bench, base, case), cases)):
                states.add(state)
                failed += bool(wrong)
                for what in wrong:
                    print(f"block {case[0]}{', torn' if case[1] else ''}: {what}")
    print(f"{given.profile}, {given.item}: {blocks} blocks, {len(cases)} cuts, {len(states)} states, "
          f"{failed} failed")
    return 1 if failed or not cases else 0


if __name__ == "__main__":
    sys.exit(main())
