#!/usr/bin/env bash
# Builds release and runs its benchmarks one after another. A quiet machine is wanted; nothing fails on a
# number.
#
#   tools/bench.sh                                  all programs of bench/, each against its floors
#   tools/bench.sh StartBench                       some of them
#   tools/bench.sh --against ../old/build/release   against the same programs of an older build
#   tools/bench.sh --against ../old/build/release --rounds 7 ModelBench
#
# Leaves in build/bench: NAME.json and NAME.txt of each program, and ratios.md. With --against, the two
# builds take turns, three rounds unless told: old, new, old, new, ... The table has the ratio new to old
# of each line (median, lowest and highest of the rounds) and what only one of the builds has; it is left
# as build/bench/against/ratios.md, beside NAME.old.1.json and so on.
set -euo pipefail
called_from=$PWD
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

usage() {
    {
        [ $# -eq 0 ] || echo "$*"
        echo "usage: tools/bench.sh [--against BUILD [--rounds N]] [PROGRAM...]"
    } >&2
    exit 2
}

against=
rounds=
programs=()
while [ $# -gt 0 ]; do
    case "$1" in
        --against | --rounds)
            [ $# -ge 2 ] || usage "$1 wants a value."
            [ "$1" = --against ] && against=$2 || rounds=$2
            shift
            ;;
        -*) usage "There is no option $1." ;;
        *) programs+=("$1") ;;
    esac
    shift
done
mapfile -t known < <(sed -n 's/^quorlin_bench(NAME \([A-Za-z]*\).*/\1/p' bench/CMakeLists.txt)
for program in "${programs[@]}"; do
    [[ " ${known[*]} " == *" $program "* ]] || usage "There is no benchmark $program."
done
[ -z "$rounds" ] || [ -n "$against" ] || usage "--rounds goes with --against."
[[ "${rounds:=3}" =~ ^[1-9][0-9]?$ ]] || usage "--rounds wants a number from 1 to 99."
[ -z "$against" ] || [ "${against#/}" != "$against" ] || against=$called_from/$against
if [ -n "$against" ] && ! compgen -G "$against/bin/*Bench" >/dev/null; then
    usage "$against is no build folder: it has no bin/*Bench."
fi
[ -z "$against" ] || against=$(realpath "$against")
all=false
if [ "${#programs[@]}" -eq 0 ]; then
    all=true
    programs=("${known[@]}")
fi

# Runs a program of a build; its results go into a file.
run_bench() {
    QT_QPA_PLATFORM=offscreen "$1/bin/$2" --benchmark_out="$3" --benchmark_out_format=json
}

machine() {
    echo "$(date -u +%F), $(nproc) cores, $(awk '/MemTotal/ {printf "%.0f", $2 / 1048576}' /proc/meminfo)" \
        "GiB, load $(cut -d' ' -f1 /proc/loadavg) before the run"
}

against_floors() {
    local folder=build/bench program
    mkdir -p "$folder"
    {
        machine
        echo
        echo "| Program | Measured | ms | Floor | ms | Ratio | Aim |"
        echo "|---|---|---:|---|---:|---:|---:|"
    } >"$folder/ratios.md"
    for program in "${programs[@]}"; do
        quorlin_say "$program"
        rm -f "$folder/$program.csv"
        QUORLIN_RATIOS="$folder/$program.csv" run_bench build/release "$program" "$folder/$program.json" |
            tee "$folder/$program.txt"
        sed "s/^/| $program | /; s/,/ | /g; s/\$/ |/" "$folder/$program.csv" >>"$folder/ratios.md"
    done
    quorlin_say "Ratios"
    cat "$folder/ratios.md"
}

# A program that one build lacks is a line of the table; of the others each has its rounds.
against_build() {
    local folder=build/bench/against program round both=() alone=()
    rm -rf "$folder"
    mkdir -p "$folder"
    for program in "${programs[@]}"; do
        if [ -x "$against/bin/$program" ]; then
            both+=("$program")
        else
            alone+=("| $program | all | | | only new | | |")
        fi
    done
    if $all; then
        for program in "$against"/bin/*Bench; do
            program=${program##*/}
            [[ " ${known[*]} " == *" $program "* ]] || alone+=("| $program | all | | | only old | | |")
        done
    fi
    machine >"$folder/ratios.md"
    for ((round = 1; round <= rounds; ++round)); do
        for program in "${both[@]}"; do
            quorlin_say "$program, round $round of $rounds"
            run_bench "$against" "$program" "$folder/$program.old.$round.json" >/dev/null
            run_bench build/release "$program" "$folder/$program.new.$round.json" >/dev/null
        done
    done
    {
        echo "New: $PWD/build/release. Old: $against. Rounds: $rounds."
        echo
        echo "| Program | Line | old, ms | new, ms | new / old | lowest | highest |"
        echo "|---|---|---:|---:|---:|---:|---:|"
        for program in "${both[@]}"; do
            awk -f tools/bench-against.awk "$folder/$program".{old,new}.*.json
        done
        printf '%s\n' "${alone[@]}"
    } >>"$folder/ratios.md"
    quorlin_say "Ratios"
    cat "$folder/ratios.md"
}

quorlin_need_packages build
quorlin_build release "${programs[@]}"
if [ -n "$against" ]; then
    against_build
else
    against_floors
fi
