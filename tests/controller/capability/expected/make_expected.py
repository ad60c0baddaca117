#!/usr/bin/env python3
"""Makes the documents that the capability updater is expected to give.

This is a second derivation, on purpose apart from the C++ updater: it takes each page's template,
the band tables of 3GPP and the tables of the DUT out of their files, and works out by itself what
the page of that DUT looks like. No line of it follows the C++ code, and neither is changed to agree
with the other before it is clear which of the two is right.

    tests/controller/capability/expected/make_expected.py           writes the expected documents
    tests/controller/capability/expected/make_expected.py --check   only tells which files differ, exit code 1

What it reads: Model/resources/*.json, Simulator/profile/builtin/*.json, tests/controller/capability/profiles/*.json.
What it writes, one file a page, named after the page's resource:

    tests/controller/capability/expected/      the built-in profile "handset"
    tests/controller/capability/expected/odd/  tests/controller/capability/profiles/odd.json

A DUT that does not answer its capability reads has no expected documents; see profile.py.
"""

from __future__ import annotations

import sys
from pathlib import Path

sys.dont_write_bytecode = True  # the tree stays as it is

from derivation.bands import Update  # noqa: E402
from derivation.document import Document, StepFailed  # noqa: E402
from derivation.dut import Dut, dut_from_profile  # noqa: E402
from derivation.layout import pretty  # noqa: E402
from derivation.pages import PAGES  # noqa: E402
from derivation.profile import BUILTIN_PROFILES, load_profile  # noqa: E402
from derivation.reference import Reference  # noqa: E402

EXPECTED = Path(__file__).resolve().parent
TOP = EXPECTED.parents[3]
RESOURCES = TOP / "Model" / "resources"
DUTS = {
    TOP / BUILTIN_PROFILES / "handset.json": EXPECTED,
    TOP / "tests/controller/capability/profiles/odd.json": EXPECTED / "odd",
}


def expected_text(page: str, dut: Dut, reference: Reference) -> str:
    document = Document(RESOURCES / f"{page}.json")
    try:
        PAGES[page](Update(document, dut, reference))
    except StepFailed:
        pass  # the document says so, and stays as far as it came
    return pretty(document.root) + "\n"


def main(arguments: list[str]) -> int:
    if arguments not in ([], ["--check"]):
        print("usage: make_expected.py [--check]", file=sys.stderr)
        return 2
    check_only = bool(arguments)
    reference = Reference(RESOURCES / "Nr3gpp.json")
    differing = 0
    for profile, folder in DUTS.items():
        dut = dut_from_profile(load_profile(TOP, profile))
        for page in PAGES:
            file = folder / f"{page}.json"
            text = expected_text(page, dut, reference)
            if file.exists() and file.read_text(encoding="utf-8") == text:
                continue
            differing += 1
            print(file.relative_to(TOP))
            if not check_only:
                folder.mkdir(parents=True, exist_ok=True)
                file.write_text(text, encoding="utf-8")
    return 1 if check_only and differing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
