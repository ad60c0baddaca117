#!/usr/bin/env python3
"""Changes the product in small ways, one at a time, and sees whether a test notices: see tools/mutate.sh."""
import argparse
import json
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent / 'mutants'))
import report  # noqa: E402
import runs  # noqa: E402
import tree  # noqa: E402

FOLDER = Path('build/mutants')
RESULTS = FOLDER / 'results.jsonl'
EQUIVALENT = Path('tools/mutants/equivalent.txt')


def woven_sample(arguments):
    """Builds the copy with a sample; the pairs of number and place that are in it."""
    FOLDER.mkdir(parents=True, exist_ok=True)
    refused_file = FOLDER / 'refused.txt'
    refused = set(refused_file.read_text().split()) if refused_file.exists() else set()
    places = tree.all_places(arguments.only)
    numbered = [pair for pair in enumerate(tree.sample(places, arguments.count, arguments.seed), 1)
                if pair[1].key not in refused]
    if arguments.built:
        return numbered
    copy = FOLDER / 'tree'
    tree.write_copy(copy, numbered)
    tree.configure(copy)
    for gone in tree.build(copy, numbered, FOLDER / 'build.log'):
        print(f'{len(gone)} mutants do not compile and are left out', flush=True)
        keys = {place.key for place in gone}
        with refused_file.open('a') as file:
            file.writelines(key + '\n' for key in sorted(keys))
        numbered = [pair for pair in numbered if pair[1].key not in keys]
    return numbered


def runs_with_reach(numbered, desk, arguments):
    """What each test reaches, measured once for a sample."""
    file = FOLDER / 'reached.json'
    sample = [[number, place.key] for number, place in numbered]
    if file.exists():
        known = json.loads(file.read_text())
        if known['sample'] == sample and known['longest'] == arguments.longest:
            return [runs.Run(**run) for run in known['runs']]
    every = runs.all_runs(FOLDER / 'tree/build/release', tree.PROGRAMS)
    good = runs.find_reached(every, desk, arguments.jobs, arguments.longest, lambda line: print(line, flush=True))
    file.write_text(json.dumps({'sample': sample, 'longest': arguments.longest, 'runs': [vars(run) for run in good]}))
    return good


def to_judge(numbered, arguments):
    """Those of the sample without a verdict, and those that a run with fewer seconds for each gave up; with
    --again all that none has noticed and none explained. Each with the tests that need not be run again."""
    known = report.latest(RESULTS)
    same = report.equivalents(EQUIVALENT)
    chosen = []
    for number, place in numbered:
        verdict = known.get(place.key, {})
        result = verdict.get('result')
        if arguments.again:
            if result != 'noticed' and place.key not in same:
                chosen.append((number, place, []))
        elif not result or (result == 'unknown' and verdict['most'] < arguments.most):
            chosen.append((number, place, verdict.get('passed_by', [])))
    return chosen


def judge_all(chosen, tests, desk, arguments):
    end = time.monotonic() + 60 * arguments.minutes
    noticed = runs.Noticed(report.latest(RESULTS).values())

    def one(item):
        number, place, passed_before = item
        if time.monotonic() > end:
            return
        verdict = runs.judge(number, noticed.in_order(place.path, tests), desk, arguments.most, passed_before)
        noticed.add(place.path, verdict.get('by'))
        place_words = {'key': place.key, 'path': place.path, 'line': place.line, 'kind': place.kind,
                       'original': ' '.join(place.original.split()), 'changed': place.changed, 'number': number}
        with RESULTS.open('a') as file:
            file.write(json.dumps({**place_words, **verdict, 'seed': arguments.seed, 'most': arguments.most,
                                   'again': arguments.again}) + '\n')

    with ThreadPoolExecutor(arguments.jobs) as pool:
        list(pool.map(one, chosen))


def main():
    parser = argparse.ArgumentParser(prog='tools/mutate.sh', description=__doc__)
    parser.add_argument('--count', type=int, default=200, help='mutants of the sample')
    parser.add_argument('--seed', type=int, default=1, help='which sample')
    parser.add_argument('--minutes', type=float, default=480, help='no mutant is begun after that')
    parser.add_argument('--most', type=float, default=60,
                        help='no test of a mutant is begun after so many seconds of tests')
    parser.add_argument('--longest', type=float, default=20, help='tests that take more seconds judge nothing')
    parser.add_argument('--jobs', type=int, default=2, help='tests at once')
    parser.add_argument('--again', action='store_true', help='judge those that were not noticed once more')
    parser.add_argument('--only', action='append', help='a folder of the product, instead of all')
    parser.add_argument('--built', action='store_true', help='takes the copy as it is built')
    parser.add_argument('--report', action='store_true', help='only print what is known')
    arguments = parser.parse_args()
    paths = None
    if not arguments.report:
        desk = runs.Desk(FOLDER)
        numbered = woven_sample(arguments)
        tests = runs_with_reach(numbered, desk, arguments)
        print(f'{len(numbered)} mutants, {len(tests)} test runs of {sum(run.seconds for run in tests):.0f} s', flush=True)
        judge_all(to_judge(numbered, arguments), tests, desk, arguments)
        paths = {place.key: place.path for _, place in numbered}
    return report.show(RESULTS, EQUIVALENT, paths)


if __name__ == '__main__':
    sys.exit(main())
