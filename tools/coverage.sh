#!/usr/bin/env bash
# Which lines and branches of the product its tests run: builds everything with clang and its source-based
# counters in build/coverage, runs all tests there, and prints a table by folder. An edge that only an
# exception takes is no branch.
#
#   tools/coverage.sh           builds, runs all tests, counts
#   tools/coverage.sh --count   counts what ran before
#   tools/coverage.sh --least-lines 90 --least-branches 75   fails when fewer percent of all ran
#
# build/coverage/uncovered.txt has the lines that nothing ran and the conditions that came out one way only.
# A test that fails is told and does not end the count: some look for files that counters write. A process
# that ends by a signal or by _exit writes no counts. On Debian 12 the packages clang-14, llvm-14 and
# libclang-rt-14-dev are needed, and are installed when this runs as root.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

build=build/coverage
count=false
least=()
while [ $# -gt 0 ]; do
    case "$1:${2:-}" in
        --count:*) count=true ;;
        --least-lines:[0-9]* | --least-branches:[0-9]*)
            least+=("$1" "$2")
            shift
            ;;
        *)
            echo "usage: tools/coverage.sh [--count] [--least-lines PERCENT] [--least-branches PERCENT]" >&2
            exit 2
            ;;
    esac
    shift
done

# All that has code of the product, and each library once: a test program that has a module in itself counts
# for the module's own functions, which have the same names.
objects=(bin/quorlin bin/quorlin-host lib/libVondApp.so lib/libVondTap.so
    plugins/libQuorlinCal.so plugins/libQuorlinPlots.so plugins/libQuorlinRf.so)

build_and_run() {
    # C by the same compiler: a precompiled header has another ending with each.
    cmake -S . -B "$build" -G Ninja -DCMAKE_C_COMPILER=clang-14 -DCMAKE_CXX_COMPILER=clang++-14 \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -DCMAKE_CXX_FLAGS="-fprofile-instr-generate -fcoverage-mapping" \
        -DQUORLIN_UNITY=ON -DQUORLIN_WERROR=OFF -DQUORLIN_BENCH=OFF >"$build.configure.log"
    cmake --build "$build" --parallel "$(quorlin_jobs)"
    rm -rf "$build/profiles"
    # One file for each library and program, which all its runs add to.
    LLVM_PROFILE_FILE="$PWD/$build/profiles/%m.profraw" \
        ctest --test-dir "$build" --parallel "$(($(quorlin_jobs) + 2))" --timeout 1200 ||
        echo "Some tests failed; what they ran is counted." >&2
}

quorlin_need_packages build coverage
mkdir -p build
$count || build_and_run
llvm-profdata-14 merge -sparse -o "$build/all.profdata" "$build"/profiles/*.profraw
arguments=()
for object in "${objects[@]}"; do
    arguments+=(-object "$build/$object")
done
llvm-cov-14 export -instr-profile "$build/all.profdata" "${arguments[@]}" \
    -ignore-filename-regex='/(build|tests|bench)/|^/usr/' >"$build/all.json"
quorlin_say "$build/uncovered.txt"
tools/coverage.py "$build/all.json" --uncovered "$build/uncovered.txt" "${least[@]}"
