#!/usr/bin/env bash
# Long runs on the simulated DUT that watch memory. Needs no display.
#
#   tools/soak.sh 65              the RSRP page: an hour behind the first five minutes
#   tools/soak.sh 65 7            with other chance
#   tools/soak.sh 65 1 --plot     with the page's plot open
#   tools/soak.sh --day 8         a working day at the bench host and all pages of the tool
#   tools/soak.sh --day 8 7 20    with other chance, and clocks that run 20 times as fast
#
# The RSRP page runs at its shortest period, with starts, stops, clears and tab changes, and prints memory and the
# cost of a fetch, a line a minute, in real time. It fails when memory at the end is more than 2 % above that after
# five minutes, and with --plot as well when fetches cost the GUI thread more than 1.3 times of those without it.
#
# The day is one of the process's clocks, which libfaketime makes run 16 times as fast as the machine's: eight hours
# are half an hour. Timers, periods and delays of tool, host and DUT all go by these clocks. It prints a line a quarter
# of an hour and fails when memory grows by more than 2 %, or files, threads, widgets or windows at all.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

usage() {
    echo "usage: tools/soak.sh MINUTES [SEED [--plot]]" >&2
    echo "       tools/soak.sh --day HOURS [SEED [SPEED]]" >&2
    exit 2
}

soak_a_day() {
    local hours=${1:-} seed=${2:-1} speed=${3:-16} library
    [[ "$hours" =~ ^[0-9]+(\.[0-9]+)?$ && "$seed" =~ ^[0-9]+$ && "$speed" =~ ^[1-9][0-9]*$ ]] || usage
    quorlin_need_packages build soak
    library=$(find /usr/lib -name libfaketimeMT.so.1 2>/dev/null | head -n 1)
    if [ -z "$library" ]; then
        echo "The clocks can't be made to run faster: libfaketimeMT.so.1 (Debian package libfaketime) is not" >&2
        echo "installed. For a day in real time: build/release/bin/WorkdaySoak --hours $hours" >&2
        exit 2
    fi
    quorlin_build release WorkdaySoak
    quorlin_say "A day of $hours hours, seed $seed, clocks $speed times as fast, from $(date -u +'%F %H:%M') UTC"
    LD_PRELOAD=$library FAKETIME="+0 x$speed" FAKETIME_DONT_FAKE_MONOTONIC=0 QUORLIN_CLOCK_SPEED=$speed \
        FONTCONFIG_FILE=$PWD/tests/fonts/dejavu-sans.conf QT_QPA_PLATFORM=offscreen \
        QT_LOGGING_RULES='default.warning=false' \
        build/release/bin/WorkdaySoak --hours "$hours" --seed "$seed"
}

if [ "${1:-}" = --day ]; then
    shift
    soak_a_day "$@"
    exit
fi
minutes=${1:-}
seed=${2:-1}
plot=${3:-}
[[ "$minutes" =~ ^[0-9]+$ && "$minutes" -ge 1 && "$seed" =~ ^[0-9]+$ && "$plot" =~ ^(--plot)?$ ]] || usage
quorlin_need_packages build
quorlin_build release RsrpSoak
quorlin_say "Soak of $minutes minutes, seed $seed${plot:+, with the plot open}, from $(date -u +'%F %H:%M') UTC"
build/release/bin/RsrpSoak --minutes "$minutes" --seed "$seed" ${plot:+"$plot"}
