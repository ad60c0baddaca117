"""The copy of the tree that mutants are woven into, and its build."""
import os
import random
import re
import subprocess
from bisect import bisect_right
from pathlib import Path

from places import places_of, woven

FOLDERS = ['Controller', 'Model', 'Operations', 'Runner', 'Support', 'Tap', 'Trace', 'View/engine', 'View/pages']
# The test programs that judge; campaigns, fuzzers and what measures or needs another build are left out.
PROGRAMS = ['CalCliTest', 'CapabilityUnitTest', 'CliTest', 'ControllerUnitTest', 'CoreThrowTest', 'DeviceTest',
            'EngineTest', 'FormTest', 'ModelUnitTest', 'OperationsUnitTest', 'PlanRunTests', 'PlanTest', 'ReplayTest',
            'ReportTest', 'RunnerBenchTest', 'SupportGuiTest', 'SupportUnitTest', 'TapTest', 'TraceTest',
            'ViewControllerTest']
NEEDED = ['QuorlinRf', 'QuorlinCal', 'QuorlinPlots', 'quorlin']
ERROR = re.compile(r'^(?:\S*?/)?((?:%s)/\S+\.cpp):(\d+):\d+: (?:fatal )?(error|note|required)' % '|'.join(FOLDERS), re.M)


def sources():
    """The tree's files as git knows them, with those not yet committed."""
    listed = subprocess.run(['git', 'ls-files', '-co', '--exclude-standard', '-z'], check=True, capture_output=True)
    return [name for name in listed.stdout.decode().split('\0') if name and Path(name).is_file()]


def all_places(folders=None):
    """All places of the product's sources, in the order of files and of lines."""
    found = []
    for name in sorted(sources()):
        if name.endswith('.cpp') and any(name.startswith(folder + '/') for folder in folders or FOLDERS):
            found += places_of(name, Path(name).read_text())
    return found


def sample(places, count, seed):
    """Places in the order of chance, none within another, so that one build holds all of them."""
    order = sorted(places, key=lambda place: place.key)
    random.Random(seed).shuffle(order)
    taken, spans = [], {}
    for place in order:
        if len(taken) == count:
            break
        spans_of_file = spans.setdefault(place.path, [])
        at = bisect_right(spans_of_file, (place.start, place.end))
        before = spans_of_file[at - 1] if at else (0, 0)
        after = spans_of_file[at] if at < len(spans_of_file) else (1 << 60, 0)
        if before[1] > place.start or after[0] < place.end:
            continue
        spans_of_file.insert(at, (place.start, place.end))
        taken.append(place)
    return taken


def write_copy(copy, numbered):
    """Writes what differs alone, so that the next build is short."""
    of_file = {}
    for number, place in numbered:
        of_file.setdefault(place.path, []).append((number, place))
    names = set(sources())
    for name in names:
        data = Path(name).read_bytes()
        if name in of_file:
            data = woven(data.decode(), of_file[name]).encode()
        to = copy / name
        if not to.is_file() or to.read_bytes() != data:
            to.parent.mkdir(parents=True, exist_ok=True)
            to.write_bytes(data)
            to.chmod(os.stat(name).st_mode & 0o777)
    for folder in FOLDERS:
        for old in (copy / folder).rglob('*.cpp'):
            if str(old.relative_to(copy)) not in names:
                old.unlink()


def configure(copy):
    subprocess.run(['cmake', '--preset', 'release', '-DQUORLIN_BENCH=OFF', '-DQUORLIN_PRODUCT_OPTIONS=-O1'], cwd=copy,
                   check=True, stdout=subprocess.DEVNULL)


def refused_places(output, numbered):
    """The places on whose lines the compiler found errors, or else all of the files with errors."""
    lines = {}
    for name, line, _ in ERROR.findall(output):
        lines.setdefault(name, set()).add(int(line))
    refused = []
    for _, place in numbered:
        height = place.original.count('\n')
        on_lines = {line for line in lines.get(place.path, ())
                    if place.line - height <= line <= place.line + height}
        if on_lines:
            refused.append(place)
    if not refused:
        broken = {name for name, _, kind in ERROR.findall(output) if kind == 'error'}
        refused = [place for _, place in numbered if place.path in broken]
    return refused


def build(copy, numbered, log):
    """Builds until all compiles; yields the places that had to go, some at a time."""
    while True:
        result = subprocess.run(['ninja', '-C', 'build/release', '-k', '0', *NEEDED, *PROGRAMS], cwd=copy,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors='replace')
        log.write_text(result.stdout)
        if result.returncode == 0:
            return
        refused = refused_places(result.stdout, numbered)
        if not refused:
            raise SystemExit(f'The copy of the tree does not build, and no mutant is on the lines: {log}')
        yield refused
        keys = {place.key for place in refused}
        numbered = [pair for pair in numbered if pair[1].key not in keys]
        write_copy(copy, numbered)
