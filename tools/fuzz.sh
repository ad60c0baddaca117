#!/usr/bin/env bash
# Hunts for inputs that break the product: builds the fuzz targets with clang, libFuzzer and the
# address and undefined-behaviour sanitizers in build/fuzz, and runs each for some minutes, two at
# once, one process each.
#
#   tools/fuzz.sh 20                        twenty minutes of every target; three times as long for RecordFuzz
#                                           and CommandFuzz, which stand for most of what a DUT may answer
#   tools/fuzz.sh 5 IniFuzz ProfileFuzz     five of these
#   tools/fuzz.sh --idle IniFuzz            the inputs of the tree that reach nothing that others don't
#
# A hunt that was cut off goes on where it was, to five minutes: what is done stands in build/fuzz/spent until
# all have had their minutes. QUORLIN_FUZZ_AT_ONCE is the number of targets at once.
#
# What is found lies in build/fuzz/found, named after its target, with the stacks in
# build/fuzz/TARGET.log; a target stops at its first finding. Inputs that reached something new are
# kept in build/fuzz/corpus/TARGET for the next time. Ends with a table, and fails when something was
# found, this time or before and still broken. Executions per second are told by the clock and by the
# processor's time, which other work on the machine does not change. On Debian 12 the packages clang-14 and
# libclang-rt-14-dev are needed, and are installed when this runs as root.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=build/fuzz
found=$build/found
spent=$build/spent
at_once=${QUORLIN_FUZZ_AT_ONCE:-2}
slice=300 # seconds that a cut-off may lose

usage() {
    echo "usage: tools/fuzz.sh MINUTES [TARGET]..., tools/fuzz.sh --idle [TARGET]..." >&2
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

# Seconds that a target gets.
wanted_of() {
    case "$1" in
        RecordFuzz | CommandFuzz) echo $((seconds * (is_every_target ? 3 : 1))) ;;
        *) echo "$seconds" ;;
    esac
}

# The sum of a column of a target's slices: 1 seconds, 2 processor seconds, 3 executions, 4 new inputs.
sum_of() {
    [ -e "$spent/$1" ] || { echo 0 && return; }
    awk -v at="$2" '{ sum += $at } END { printf "%d", sum }' "$spent/$1"
}

# A number of libFuzzer's closing lines; nothing when it wrote none.
figure() {
    local line
    line=$(grep -a "^stat::$2:" "$build/$1.log" | tail -n 1) || true
    echo "${line:+${line##* }}"
}

# Coverage as the log's first or last line tells it.
coverage() {
    { grep -aoE ' cov: [0-9]+' "$build/$1.log" || true; } | "$2" -n 1 | tr -dc 0-9
}

# Of the children, between two outputs of "times": the second line of each, "12m34.567s 0m0.123s".
processor_seconds() {
    awk 'FNR == 2 {
        split($1, at, /[ms]/)
        used[++files] = at[1] * 60 + at[2]
    }
    END { printf "%.3f", used[2] - used[1] }' "$1" "$2"
}

# The product writes to the standard error by right; libFuzzer keeps its own way to the log.
hunt() {
    local name=$1 began used first last executions new options=(-print_final_stats=1 -close_fd_mask=2 -detect_leaks=0)
    local folders=() left good=yes
    IFS=: read -r -a folders < <(target_field "$name" 4)
    options+=("-max_len=$(target_field "$name" 2)")
    [ -z "$(target_field "$name" 3)" ] || options+=("-dict=$(target_field "$name" 3)")
    while [ "$good" = yes ]; do
        left=$(($(wanted_of "$name") - $(sum_of "$name" 1)))
        [ "$left" -gt 0 ] || break
        [ "$left" -lt "$slice" ] || left=$slice
        began=$SECONDS
        times >"$build/$name.began"
        (run_target "$name" "${options[@]}" "-max_total_time=$left" "$build/corpus/$name" \
            "${folders[@]}" >"$build/$name.log" 2>&1) || good=no
        times >"$build/$name.ended"
        used=$(processor_seconds "$build/$name.began" "$build/$name.ended")
        [ -n "$(figure "$name" number_of_executed_units)" ] || good=no
        first=$(coverage "$name" head)
        last=$(coverage "$name" tail)
        executions=$(figure "$name" number_of_executed_units)
        new=$(figure "$name" new_units_added)
        echo "$((SECONDS - began)) $used ${executions:-0} ${new:-0} ${first:-0} ${last:-0}" \
            >>"$spent/$name"
    done
}

# libFuzzer names what it merges by the SHA-1 of the bytes.
show_idle() {
    local name=$1 folders=() merged file
    IFS=: read -r -a folders < <(target_field "$name" 4)
    merged=$(mktemp -d)
    (run_target "$name" -merge=1 -close_fd_mask=3 "-max_len=$(target_field "$name" 2)" "$merged" \
        "${folders[0]}") >"$build/$name.merge.log" 2>&1
    for file in "${folders[0]}"/*; do
        [ -e "$merged/$(sha1sum "$file" | cut -d ' ' -f 1)" ] || echo "${file#"$PWD"/}"
    done
    rm -rf "$merged"
}

count_found() {
    find "$found" -name "$1-*" | wc -l
}

idle=no
minutes=0
if [ "${1:-}" = --idle ]; then
    idle=yes
elif [[ "${1:-}" =~ ^[1-9][0-9]*$ ]]; then
    minutes=$1
else
    usage
fi
seconds=$((minutes * 60))
shift
is_every_target=$(($# == 0))

need_clang
mkdir -p "$found" "$spent"
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

if [ "$idle" = yes ]; then
    for name in "${names[@]}"; do
        show_idle "$name"
    done
    exit
fi

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
printf '\n| Target | Minutes | Executions | A second | A processor second | Coverage | New inputs | Findings |\n'
printf '|---|---:|---:|---:|---:|---|---:|---:|\n'
for name in "${names[@]}"; do
    findings=$(count_found "$name")
    executions=$(sum_of "$name" 3)
    # A target that could not start has no numbers, and is no success either.
    if [ "${executions:-0}" -eq 0 ] || [ "$findings" -gt 0 ]; then
        bad=1
    fi
    [ -e "$spent/$name" ] || continue
    awk -v name="$name" -v findings="$findings" '
        NR == 1 { first = $5 }
        { clock += $1; cpu += $2; runs += $3; new += $4; last = $6 }
        END {
            printf "| %s | %.0f | %d | %.0f | %.0f | %d to %d | %d | %d |\n", name, clock / 60, runs,
                runs / (clock > 0 ? clock : 1), runs / (cpu > 0 ? cpu : 1), first, last, new, findings
        }' "$spent/$name"
    rm "$spent/$name"
done
if [ "$bad" -ne 0 ]; then
    printf '\nFound, or not run to the end (see the logs):\n'
    ls "$found"
    echo "Make one smaller with: $build/bin/TARGET -minimize_crash=1 -runs=2000 FILE"
    exit 1
fi
