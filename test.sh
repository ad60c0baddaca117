#!/usr/bin/env bash
# Builds the tool and runs the tests: the release build and the demonstration, then the same tests
# with the address and undefined-behaviour sanitizers. On a fresh Debian 12 it first installs what
# the build needs. Needs no display. Fails at the first thing that fails.
#
# What takes long to build or to run is left to one of the two builds, as cmake/RunsOnce.cmake has it.
#
#   ./test.sh            what a commit has to pass
#   ./test.sh --all      the same, and all tests in both builds
#   ./test.sh --quick    the release build only
#   ./test.sh --tsan     the same tests with the thread sanitizer, and a seeded race that it must find;
#                        by itself, since it takes about as long as all of the others
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/setup.sh

presets=(release asan)
quorlin_options=(-DQUORLIN_ALL_RUNS=OFF)
case "$#:${1:-}" in
    0:) ;;
    1:--all) quorlin_options=() ;;
    1:--quick) presets=(release) ;;
    1:--tsan) presets=(tsan) quorlin_options=() ;;
    *)
        echo "usage: ./test.sh [--all|--quick|--tsan]" >&2
        exit 2
        ;;
esac

quorlin_need_packages build
for preset in "${presets[@]}"; do
    quorlin_build "$preset"
    quorlin_say "Tests of $preset"
    # Many tests wait for timers of the tool: two more than cores keep the cores at work.
    ctest --preset "$preset" --parallel "$(($(quorlin_jobs) + 2))"
    if [ "$preset" = release ]; then
        quorlin_demo --profile handset
    fi
done
quorlin_say "All tests passed"
