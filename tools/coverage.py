#!/usr/bin/env python3
"""Counts lines and branches by folder from what `llvm-cov export` wrote.

    tools/coverage.py build/coverage/all.json --uncovered build/coverage/uncovered.txt
    tools/coverage.py ... --least-lines 95 --least-branches 85

Fails with 1 when less than a least share, in percent, ran of all lines or branches. A branch is one outcome of a
condition. A condition whose outcome the compiler knows is none; in code of a header or a template, what ran in
one of its copies has run. A constexpr function that no program ran counts for nothing: the compiler ran it.
"""

import argparse
import collections
import json
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def line_counts(segments):
    """Counts of the lines of a file by number, from its segments: of each line the highest that begins on
    it, or else what the line before ended with."""
    counts = {}
    current = None  # count at the end of the lines so far; None: no code
    at = 0
    by_line = collections.defaultdict(list)
    for line, _column, count, has_count, is_entry, is_gap in segments:
        by_line[line].append((count if has_count else None, is_entry and not is_gap))
    for line in sorted(by_line):
        for between in range(at + 1, line):
            if current is not None:
                counts[between] = current
        entries = [count for count, is_entry in by_line[line] if is_entry and count is not None]
        if entries:
            counts[line] = max(entries + ([current] if current is not None else []))
        elif current is not None:
            counts[line] = current
        current = by_line[line][-1][0]
        at = line
    return counts


def outcomes(branches):
    """Counts of both outcomes of each condition by its place, added up over copies."""
    found = {}
    for line, column, end_line, end_column, true_count, false_count, *_rest in branches:
        place = (line, column, end_line, end_column)
        before = found.get(place, (0, 0))
        found[place] = (before[0] + true_count, before[1] + false_count)
    return found


def is_for_the_compiler(text, line, column):
    """Whether the function whose body begins at this place is constexpr or consteval."""
    head = " ".join(text[max(0, line - 6):line - 1] + [text[line - 1][:column - 1]])
    return re.search(r"\bconst(expr|eval)\b", re.split(r"[;{}]", head)[-1]) is not None


def lines_of_functions_that_compilers_ran(functions, text):
    """Lines of the constexpr functions of a file of which no copy ran."""
    counts = collections.Counter()
    for function in functions:
        line, column, end_line = function["regions"][0][:3]
        counts[line, column, end_line] += function["count"]
    return {at for (line, column, end_line), count in counts.items()
            if count == 0 and is_for_the_compiler(text, line, column) for at in range(line, end_line + 1)}


class Tally:
    def __init__(self):
        self.lines = self.lines_run = self.branches = self.branches_run = 0

    def add(self, lines, conditions):
        self.lines += len(lines)
        self.lines_run += sum(1 for count in lines.values() if count)
        self.branches += 2 * len(conditions)
        self.branches_run += sum((true > 0) + (false > 0) for true, false in conditions.values())

    def shares(self):
        """Percent of the lines and of the branches; what has none of them is run."""
        return (100 * self.lines_run / self.lines if self.lines else 100.0,
                100 * self.branches_run / self.branches if self.branches else 100.0)

    def row(self, name):
        def shown(share, whole):
            return f"{share:.1f} %" if whole else ""

        lines, branches = self.shares()
        return (f"| {name} | {self.lines} | {shown(lines, self.lines)} "
                f"| {self.branches} | {shown(branches, self.branches)} |")


def too_few(whole, least_lines, least_branches):
    """A sentence for each share that is below its least."""
    return [f"{share:.2f} % of all {what} ran; {least:g} % is the least."
            for what, share, least in zip(("lines", "branches"), whole.shares(), (least_lines, least_branches))
            if share < least]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("export", type=pathlib.Path)
    parser.add_argument("--uncovered", type=pathlib.Path, required=True)
    parser.add_argument("--least-lines", type=float, default=0)
    parser.add_argument("--least-branches", type=float, default=0)
    arguments = parser.parse_args()
    folders = collections.defaultdict(Tally)
    whole = Tally()
    uncovered = []
    export = json.loads(arguments.export.read_text())["data"][0]
    functions = collections.defaultdict(list)
    for function in export.get("functions", []):
        functions[function["filenames"][0]].append(function)
    for entry in export["files"]:
        path = pathlib.Path(entry["filename"])
        if not path.is_relative_to(ROOT):
            continue
        name = str(path.relative_to(ROOT))
        text = path.read_text().splitlines()
        compiled = lines_of_functions_that_compilers_ran(functions[entry["filename"]], text)
        lines = {line: count for line, count in line_counts(entry["segments"]).items() if line not in compiled}
        conditions = {place: both for place, both in outcomes(entry["branches"]).items() if place[0] not in compiled}
        for tally in (folders[name.split("/")[0]], whole):
            tally.add(lines, conditions)
        for line, count in sorted(lines.items()):
            if not count:
                uncovered.append((name, line, "no run", text[line - 1]))
        for (line, column, _end, end_column), (true, false) in sorted(conditions.items()):
            if lines.get(line) and not (true and false):
                never = "never true" if not true else "never false"
                uncovered.append((name, line, never, text[line - 1][column - 1:end_column - 1 or None]))
    print("| Folder | Lines | run | Branches | run |\n|---|---:|---:|---:|---:|")
    for name, tally in sorted(folders.items()):
        print(tally.row(name))
    print(whole.row("all"))
    arguments.uncovered.write_text(
        "".join(f"{name}:{line}: {what}: {code.strip()}\n" for name, line, what, code in sorted(uncovered)))
    complaints = too_few(whole, arguments.least_lines, arguments.least_branches)
    print(*complaints, sep="\n", end="\n" if complaints else "", file=sys.stderr)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
