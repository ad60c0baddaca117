#!/usr/bin/env bash
# Counts the instructions of ten paths of the product (bench/guard), each as a ratio to those of a floor
# in the same run, and fails when one stands more than 10 % above bench/guard.csv. Needs no quiet machine.
# bench/README.md tells the paths, and how far counts of two machines may differ.
#
#   scripts/guard.sh            builds what it needs, counts, compares
#   scripts/guard.sh --renew    writes bench/guard.csv anew instead
#
# Leaves the counts in build/guard: counts.csv.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

renew=false
case "$#:${1:-}" in
    0:) ;;
    1:--renew) renew=true ;;
    *)
        echo "usage: scripts/guard.sh [--renew]" >&2
        exit 2
        ;;
esac

# One way through Qt's and libc's code on every processor: neither chooses by what the processor offers.
# Symbols are bound at the start, or the first call of a function would count more than the second.
guard_environment=(
    LC_ALL=C.UTF-8 TZ=UTC QT_HASH_SEED=0 QT_QPA_PLATFORM=offscreen LD_BIND_NOW=1
    "FONTCONFIG_FILE=$PWD/tests/fonts/dejavu-sans.conf"
    "GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX2,-AVX,-AVX512F,-AVX512VL,-AVX512BW,-BMI2,-BMI1,-LZCNT,-MOVBE,-ERMS,-FSRM,-RTM,-SSE4_2,-SSE4_1,-SSSE3"
    "QT_NO_CPU_FEATURE=sse3 ssse3 sse4.1 sse4.2 avx avx2 bmi bmi2 f16c"
)

# Lines of a path's name, its instructions and its floor's. Each call of GuardCounted leaves a file with
# a count, in the order of the calls: a path, its floor.
count_paths() {
    local folder=$1 name part=0 path_count
    rm -f "$folder"/out*
    env "${guard_environment[@]}" valgrind --tool=callgrind --quiet --callgrind-out-file="$folder/out" \
        --collect-atstart=no --toggle-collect=GuardCounted --dump-after=GuardCounted \
        build/release/bin/GuardPaths >"$folder/names" 2>"$folder/errors" || {
        cat "$folder/errors" >&2
        return 1
    }
    while read -r name; do
        path_count=$(count_of "$folder/out.$((part + 1))")
        echo "$name,$path_count,$(count_of "$folder/out.$((part + 2))")"
        part=$((part + 2))
    done <"$folder/names"
}

count_of() {
    sed -n 's/^totals: *//p' "$1"
}

quorlin_need_packages build checks
quorlin_build release GuardPaths
folder=build/guard
mkdir -p "$folder"
quorlin_say "Counting instructions"
count_paths "$folder" >"$folder/counts.csv"
if $renew; then
    awk -F, 'BEGIN {print "path,ratio"} {printf "%s,%.3f\n", $1, $2 / $3}' "$folder/counts.csv" >bench/guard.csv
    cat bench/guard.csv
else
    awk -f scripts/guard.awk bench/guard.csv "$folder/counts.csv"
fi
