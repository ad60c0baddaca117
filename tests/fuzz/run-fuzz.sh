#!/usr/bin/env bash
# Hunts for inputs that break the binding engine: builds the fuzz target with clang, libFuzzer and
# the address and undefined-behaviour sanitizers in build/fuzz, and runs it in the background on what
# is known. What it finds lies in build/fuzz/found, with its stacks in build/fuzz/fuzz.log; what it
# learnt lies in build/fuzz/corpus for the next time.
#
#   tests/fuzz/run-fuzz.sh                 ten minutes, one process
#   tests/fuzz/run-fuzz.sh 3600 4          an hour, four processes
#
# Fails when something was found, this time or before. On Debian 12 the packages clang-14 and
# libclang-rt-14-dev are needed, and are installed when this runs as root.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

seconds=${1:-600}
jobs=${2:-1}
build=build/fuzz
corpus=$build/corpus
found=$build/found
log=$build/fuzz.log

need_clang() {
    if command -v clang++-14 >/dev/null &&
        [ -e "$(clang++-14 -print-file-name=libclang_rt.fuzzer-x86_64.a)" ]; then
        return 0
    fi
    echo "This needs the packages clang-14 and libclang-rt-14-dev." >&2
    [ "$(id -u)" -eq 0 ] || return 1
    apt-get update -q
    DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
        clang-14 libclang-rt-14-dev </dev/null
}

build_target() {
    local checks="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined"
    cmake -S . -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++-14 \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -g" \
        -DCMAKE_CXX_FLAGS="$checks -fno-omit-frame-pointer" \
        -DQUORLIN_LIBFUZZER=ON -DQUORLIN_WERROR=OFF -DQUORLIN_BENCH=OFF >"$build/configure.log"
    cmake --build "$build" --target EngineFuzz
}

# Leaks are left to the replay of the address sanitizer's build: looking for them after each input
# makes a hunt many times slower. Stacks of allocations are kept short for the same reason.
hunt() {
    local sanitizer=detect_odr_violation=0:detect_leaks=0
    sanitizer+=:malloc_context_size=2:quarantine_size_mb=32
    exec env ASAN_OPTIONS=$sanitizer nice -n 10 "$build/bin/EngineFuzz" \
        -fork="$jobs" -ignore_crashes=1 -ignore_timeouts=1 -ignore_ooms=1 -detect_leaks=0 \
        -max_total_time="$seconds" -max_len=4096 -timeout=10 -rss_limit_mb=1500 \
        -dict=tests/fuzz/engine/engine.dict -artifact_prefix="$found/" \
        "$corpus" tests/fuzz/engine/corpus tests/fuzz/engine/regressions >"$log" 2>&1
}

# libFuzzer's last line of state, such as "#2478: cov: 6672 ft: 6951 corp: 163 exec/s 35 ...".
report() {
    grep '^#[0-9]*:' "$log" | tail -n 1 || true
}

need_clang
mkdir -p "$corpus" "$found"
build_target

echo "Hunting for $seconds seconds with $jobs process(es); the log is $log"
hunt &
hunter=$!
trap 'kill "$hunter" 2>/dev/null || true' EXIT
while kill -0 "$hunter" 2>/dev/null; do
    sleep 10
    report
done
trap - EXIT
wait "$hunter" || echo "libFuzzer ended with an error: see $log" >&2

echo "Runs, coverage and findings:"
report
if [ -n "$(ls -A "$found")" ]; then
    echo "Found:"
    ls "$found"
    echo "Make one smaller with: $build/bin/EngineFuzz -minimize_crash=1 -runs=2000 FILE"
    exit 1
fi
