#!/usr/bin/env bash
# Runs the RSRP page at its shortest period on the simulated DUT, with starts, stops, clears and tab
# changes, and prints memory and the cost of a fetch, a line a minute. Fails when memory at the end is
# more than 2 % above that after five minutes. With --plot the page's plot stands open, and the run fails
# as well when fetches then cost the GUI thread more than 1.3 times of those without it. Takes as long as it says: the page's period is real
# time. Needs no display.
#
#   tools/soak.sh 65        an hour behind the first five minutes
#   tools/soak.sh 65 7      with other chance
#   tools/soak.sh 65 1 --plot
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

minutes=${1:-}
seed=${2:-1}
plot=${3:-}
if ! [[ "$minutes" =~ ^[0-9]+$ && "$minutes" -ge 1 && "$seed" =~ ^[0-9]+$ && "$plot" =~ ^(--plot)?$ ]]; then
    echo "usage: tools/soak.sh MINUTES [SEED [--plot]]" >&2
    exit 2
fi
quorlin_need_packages build
quorlin_build release RsrpSoak
quorlin_say "Soak of $minutes minutes, seed $seed${plot:+, with the plot open}, from $(date -u +'%F %H:%M') UTC"
build/release/bin/RsrpSoak --minutes "$minutes" --seed "$seed" ${plot:+"$plot"}
