"""Runs of tests: what there is to run, which mutants each reaches, and whether it notices one."""
import json
import os
import re
import resource
import shutil
import signal
import subprocess
import time
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path
from threading import get_ident

MEMORY = 6 << 30


@dataclass
class Run:
    """A ctest entry, or a suite of a GoogleTest program."""
    name: str
    command: list
    folder: str
    environment: dict
    seconds: float = 0
    slow: bool = False
    reached: list = field(default_factory=list)


def run_suites(run):
    """The suites of a GoogleTest program as runs of their own; the run itself where it is none."""
    if len(run.command) > 1:
        return [run]
    help_text = subprocess.run([run.command[0], '--help'], env={**os.environ, **run.environment},
                               capture_output=True, text=True, timeout=60).stdout
    if '--gtest_filter' not in help_text:
        return [run]
    listed = subprocess.run([run.command[0], '--gtest_list_tests'], env={**os.environ, **run.environment},
                            capture_output=True, text=True, check=True, timeout=60).stdout
    suites = re.findall(r'^([\w/]+)\.', listed, re.M)
    return [Run(f'{run.name}:{suite}', [*run.command, f'--gtest_filter={suite}.*', '--gtest_fail_fast'], run.folder,
                run.environment) for suite in dict.fromkeys(suites)]


def all_runs(build, programs):
    listed = subprocess.run(['ctest', '--show-only=json-v1'], cwd=build, check=True, capture_output=True, text=True)
    runs = []
    for test in json.loads(listed.stdout)['tests']:
        command = test.get('command', [''])
        if Path(command[0]).name not in programs:
            continue
        properties = {item['name']: item['value'] for item in test['properties']}
        environment = dict(item.split('=', 1) for item in properties.get('ENVIRONMENT', []))
        runs += run_suites(Run(test['name'], command, properties['WORKING_DIRECTORY'], environment))
    return runs


class Desk:
    """Runs one test at a time for a thread, with settings, locks and temporary files of its own."""

    def __init__(self, folder):
        self.folder = Path(folder).resolve()

    def _home(self):
        home = self.folder / f'home-{get_ident()}'
        shutil.rmtree(home, ignore_errors=True)
        for name in ('config', 'data', 'runtime', 'tmp'):
            (home / name).mkdir(parents=True, mode=0o700)
        return home

    def run(self, run, limit, **variables):
        """Whether the test passes within the limit in seconds, how it ended, and the seconds it took."""
        home = self._home()
        environment = {**os.environ, **run.environment, 'HOME': str(home), 'TMPDIR': str(home / 'tmp'),
                       'XDG_CONFIG_HOME': str(home / 'config'), 'XDG_DATA_HOME': str(home / 'data'),
                       'XDG_RUNTIME_DIR': str(home / 'runtime'), **variables}
        began = time.monotonic()
        process = subprocess.Popen(run.command, cwd=run.folder, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
                                   preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY)))
        try:
            status = process.wait(limit)
            end = 'passed' if status == 0 else f'exit {status}'
        except subprocess.TimeoutExpired:
            end = 'too long'
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
        shutil.rmtree(home, ignore_errors=True)
        return end == 'passed', end, time.monotonic() - began


def find_reached(runs, desk, jobs, most_seconds, report):
    """Fills in what each run reaches and takes; leaves out those that fail, and tells which are too slow to judge."""
    def look(run):
        file = desk.folder / f'reached-{get_ident()}'
        file.unlink(missing_ok=True)
        passed, end, run.seconds = desk.run(run, most_seconds, QUORLIN_REACHED=str(file))
        if file.exists():
            run.reached = sorted({int(line) for line in file.read_text().split()})
        # The file may be too much for a test of what a process may write.
        if not passed and end != 'too long':
            passed, end, run.seconds = desk.run(run, most_seconds)
        run.slow = end == 'too long'
        if not passed:
            report(f'{run.name}: {end}, judges nothing')
        return passed or run.slow
    with ThreadPoolExecutor(jobs) as pool:
        good = list(pool.map(look, runs))
    return [run for run, passed in zip(runs, good) if passed]


def is_chance(run, end, number, desk):
    """Whether it failed for another reason: without the mutant it takes as long, or with it it passes now."""
    limit = 10 + 5 * run.seconds
    if end == 'too long':
        return not desk.run(run, limit)[0]
    return desk.run(run, limit, QUORLIN_MUTANT=str(number))[0]


class Noticed:
    """How often each run noticed a mutant of a file: the next one there is likely to be noticed by the same."""

    def __init__(self, verdicts):
        self.times = {}
        for verdict in verdicts:
            self.add(verdict['path'], verdict.get('by'))

    def add(self, path, name):
        if name:
            self.times[path, name] = self.times.get((path, name), 0) + 1

    def in_order(self, path, runs):
        return sorted(runs, key=lambda run: run.seconds / (1 + self.times.get((path, run.name), 0)))


def judge(number, runs, desk, most_seconds, passed_before=()):
    """Runs the tests that reach a mutant, in their order, until one notices it; begins none after most_seconds.

    A mutant that it passes is "unknown" while there are runs left, of which some may be too slow to be tried."""
    spent = 0.0
    reaching = [run for run in runs if number in run.reached]
    passed_by = [run.name for run in reaching if run.name in passed_before]
    for run in reaching:
        if spent > most_seconds:
            break
        if run.slow or run.name in passed_by:
            continue
        passed, end, seconds = desk.run(run, 10 + 5 * run.seconds, QUORLIN_MUTANT=str(number))
        spent += seconds
        if not passed and not is_chance(run, end, number, desk):
            return {'result': 'noticed', 'by': run.name, 'end': end, 'seconds': round(spent, 1)}
        passed_by.append(run.name)
    result = 'not reached' if not reaching else 'survived' if len(passed_by) == len(reaching) else 'unknown'
    return {'result': result, 'passed_by': passed_by, 'of': len(reaching), 'seconds': round(spent, 1)}
