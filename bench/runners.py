#!/usr/bin/env python3
"""Many runners at once, each on a simulated DUT of its own: what one costs, and what all of them do.

    bench/runners.py [--build build/release] [--steps 100] [COUNT...]      COUNT: 1 2 8 32 unless told

Each runner carries out the same plan: a continuous RX start and stop in each step. A line a count:
the runners' largest resident memory, steps a second of all together, and the time from the start of
the program to the first line of its results. Beside them the time of one `quorlin describe`, which
starts the tool and nothing else. Run it on a quiet machine; nothing fails on a number.
"""

import argparse
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

PLAN = """quorlin: 1
plan: Runners
steps:
  - step: receive
    page: Continuous RX
    sweep: {{dlFrequency: {{from: {first}, to: {last}, step: 100}}}}
    press: [Start, Stop]
    expect: {{status: Cont Rx stop.}}
"""
FIRST_KHZ = 2112500  # on n1, which the page shows first


class Runner:
    """One process, its folder of reports, and when its first result was there."""

    def __init__(self, program, plan, folder):
        self.results = folder / "results.jsonl"
        self.begun = time.monotonic()
        self.first = None
        self.process = subprocess.Popen(
            [program, "run", str(plan), "--profile", "handset", "--out", str(folder)],
            stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def look(self):
        if self.first is None and self.results.exists() and self.results.stat().st_size > 0:
            self.first = time.monotonic() - self.begun

    def has_ended(self):
        """Leaves the process to be waited for."""
        options = os.WEXITED | os.WNOHANG | os.WNOWAIT
        return os.waitid(os.P_PID, self.process.pid, options) is not None

    def end(self):
        """Peak resident memory in MiB."""
        errors = self.process.stderr.read().decode()
        _, status, usage = os.wait4(self.process.pid, 0)
        self.process.returncode = os.waitstatus_to_exitcode(status)
        if self.process.returncode != 0:
            sys.exit(f"a runner ended with {self.process.returncode}:\n{errors}")
        self.look()
        return usage.ru_maxrss / 1024


def measure(program, plan, count):
    with tempfile.TemporaryDirectory() as folder:
        begun = time.monotonic()
        runners = [Runner(program, plan, pathlib.Path(folder) / str(i)) for i in range(count)]
        while any(runner.first is None for runner in runners):
            for runner in runners:
                runner.look()
            if all(runner.has_ended() for runner in runners):
                break
            time.sleep(0.005)
        memory = [runner.end() for runner in runners]
        seconds = time.monotonic() - begun
    return memory, [runner.first for runner in runners], seconds


def start_time(program):
    def once():
        begun = time.monotonic()
        subprocess.run([program, "describe", "--profile", "handset"], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return time.monotonic() - begun
    return statistics.median(once() for _ in range(5))


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--build", default="build/release")
    parser.add_argument("--steps", type=int, default=100)
    parser.add_argument("counts", nargs="*", type=int, default=[1, 2, 8, 32])
    options = parser.parse_args()
    program = pathlib.Path(options.build).resolve() / "bin" / "quorlin"
    print(f"start of the tool alone: {start_time(program):.2f} s\n")
    print("runners  memory each  steps/s of all  first result (median, longest)")
    with tempfile.TemporaryDirectory() as folder:
        plan = pathlib.Path(folder) / "plan.yaml"
        plan.write_text(PLAN.format(first=FIRST_KHZ, last=FIRST_KHZ + 100 * (options.steps - 1)))
        for count in options.counts:
            memory, first, seconds = measure(program, plan, count)
            print(f"{count:7}  {max(memory):7.0f} MiB  {count * options.steps / seconds:14.1f}"
                  f"  {statistics.median(first):.2f} s, {max(first):.2f} s")


if __name__ == "__main__":
    main()
