#!/usr/bin/env bash
# Hunts for inputs that break the product: builds the fuzz targets with clang, libFuzzer and the
# address and undefined-behaviour sanitizers in build/fuzz, and runs each for some minutes, two at
# once, one process each.
#
#   tools/fuzz.sh 20                        twenty minutes of every target
#   tools/fuzz.sh 5 IniFuzz ProfileFuzz     five of these
#
# What is found lies in build/fuzz/found, named after its target, with the stacks in
# build/fuzz/TARGET.log; a target stops at its first finding. Inputs that reached something new are
# kept in build/fuzz/corpus/TARGET for the next time. Ends with a table, and fails when something was
# found, this time or before and still broken. On Debian 12 the packages clang-14 and
# libclang-rt-14-dev are needed, and are installed when this runs as root.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=build/fuzz
found=$build/found
at_once=2

usage() {
    echo "usage: tools/fuzz.sh MINUTES [TARGET]..." >&2
    exit 2
}

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

configure() {
    # Without the tracing of comparisons, which costs more than half of the speed and gains little
    # beside mutators and dictionaries that know the formats.
    local checks="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined"
    checks+=" -fno-sanitize-coverage=trace-cmp"
    cmake -S . -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++-14 \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O2 -g1" \
        -DCMAKE_CXX_FLAGS="$checks -fno-omit-frame-pointer" \
        -DQUORLIN_LIBFUZZER=ON -DQUORLIN_WERROR=OFF -DQUORLIN_BENCH=OFF >"$build/configure.log"
}

# A field of a target's row in fuzz-targets.txt: 2 length, 3 dictionary, 4 folders.
target_field() {
    grep "^$1|" "$build/fuzz-targets.txt" | cut -d '|' -f "$2"
}

# Leaks are left to the replay of the address sanitizer's build: looking for them after each input
# makes a hunt many times slower. Stacks of allocations are kept short for the same reason.
run_target() {
    local sanitizer=detect_odr_violation=0:detect_leaks=0
    sanitizer+=:malloc_context_size=2:quarantine_size_mb=32
    local name=$1
    shift
    exec env ASAN_OPTIONS="$sanitizer" nice -n 10 "$build/bin/$name" \
        -timeout=10 -rss_limit_mb=1500 -artifact_prefix="$found/$name-" "$@"
}

# Earlier findings that are mended become known inputs.
recheck() {
    local name=$1 file
    for file in "$found/$name"-*; do
        [ -e "$file" ] || continue
        if (run_target "$name" "$file") >/dev/null 2>&1; then
            mv "$file" "$build/corpus/$name/"
        fi
    done
}

# The product writes to the standard error by right; libFuzzer keeps its own way to the log.
hunt() {
    local name=$1 options=(-print_final_stats=1 -close_fd_mask=2 -detect_leaks=0) folders=()
    IFS=: read -r -a folders < <(target_field "$name" 4)
    options+=("-max_total_time=$seconds" "-max_len=$(target_field "$name" 2)")
    [ -z "$(target_field "$name" 3)" ] || options+=("-dict=$(target_field "$name" 3)")
    run_target "$name" "${options[@]}" "$build/corpus/$name" "${folders[@]}" >"$build/$name.log" 2>&1
}

# A number of libFuzzer's closing lines; nothing when it wrote none.
figure() {
    local line
    line=$(grep -a "^stat::$2:" "$build/$1.log" | tail -n 1) || true
    echo "${line:+${line##* }}"
}

count_found() {
    find "$found" -name "$1-*" | wc -l
}

[[ "${1:-}" =~ ^[1-9][0-9]*$ ]] || usage
minutes=$1
seconds=$((minutes * 60))
shift

need_clang
mkdir -p "$found"
configure
names=("$@")
[ "${#names[@]}" -gt 0 ] || mapfile -t names < <(cut -d '|' -f 1 "$build/fuzz-targets.txt")
for name in "${names[@]}"; do
    if ! grep -q "^$name|" "$build/fuzz-targets.txt"; then
        echo "$name is no target; there are: $(cut -d '|' -f 1 "$build/fuzz-targets.txt" | xargs)" >&2
        exit 2
    fi
done
cmake --build "$build" --parallel "$at_once" --target "${names[@]}"

echo "Hunting for $minutes minutes a target, $at_once at once; the logs are $build/TARGET.log"
trap 'jobs -p | xargs -r kill 2>/dev/null || true' EXIT
for name in "${names[@]}"; do
    mkdir -p "$build/corpus/$name"
    recheck "$name"
    while [ "$(jobs -rp | wc -l)" -ge "$at_once" ]; do
        wait -n || true
    done
    hunt "$name" &
done
wait
trap - EXIT

bad=0
printf '\n| Target | Executions | Executions per second | New corpus entries | Findings |\n'
printf '|---|---:|---:|---:|---:|\n'
for name in "${names[@]}"; do
    executions=$(figure "$name" number_of_executed_units)
    findings=$(count_found "$name")
    # A target that could not start has no numbers, and is no success either.
    if [ -z "$executions" ] || [ "$findings" -gt 0 ]; then
        bad=1
    fi
    printf '| %s | %s | %s | %s | %s |\n' "$name" "${executions:--}" \
        "$(figure "$name" average_exec_per_sec)" "$(figure "$name" new_units_added)" "$findings"
done
if [ "$bad" -ne 0 ]; then
    printf '\nFound, or not run to the end (see the logs):\n'
    ls "$found"
    echo "Make one smaller with: $build/bin/TARGET -minimize_crash=1 -runs=2000 FILE"
    exit 1
fi
