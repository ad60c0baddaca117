#!/usr/bin/env bash
# Builds release, runs every benchmark one after another, and prints all ratios against the floors of
# the same run as one table. A quiet machine is wanted; nothing fails on a number.
#
#   tools/bench.sh                      all programs of bench/
#   tools/bench.sh StartBench           some of them
#
# Leaves in build/bench: NAME.json and NAME.txt of each program, and ratios.md.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

programs=("$@")
[ $# -gt 0 ] || mapfile -t programs < <(sed -n 's/^quorlin_bench(NAME \([A-Za-z]*\).*/\1/p' bench/CMakeLists.txt)

quorlin_need_packages build
quorlin_build release "${programs[@]}"
folder=build/bench
mkdir -p "$folder"

{
    echo "$(date -u +%F), $(nproc) cores, $(awk '/MemTotal/ {printf "%.0f", $2 / 1048576}' /proc/meminfo)" \
        "GiB, load $(cut -d' ' -f1 /proc/loadavg) before the run"
    echo
    echo "| Program | Measured | ms | Floor | ms | Ratio | Aim |"
    echo "|---|---|---:|---|---:|---:|---:|"
} >"$folder/ratios.md"

for program in "${programs[@]}"; do
    quorlin_say "$program"
    rm -f "$folder/$program.csv"
    QT_QPA_PLATFORM=offscreen QUORLIN_RATIOS="$folder/$program.csv" "build/release/bin/$program" \
        --benchmark_out="$folder/$program.json" --benchmark_out_format=json |
        tee "$folder/$program.txt"
    sed "s/^/| $program | /; s/,/ | /g; s/\$/ |/" "$folder/$program.csv" >>"$folder/ratios.md"
done

quorlin_say "Ratios"
cat "$folder/ratios.md"
