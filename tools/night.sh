#!/usr/bin/env bash
# Runs what takes too long for CI, one part after the other, within 8 hours on 2 cores, and writes a page
# of what came of it: build/night/report.md. A part that has passed at this commit is not run again, so a
# night that was cut off goes on where it was. The log of each part stands beside the page.
#
#   tools/night.sh                    all parts
#   tools/night.sh lifetime fuzz      these
#   tools/night.sh --short [PART]...  with a twentieth of the time for what runs by the clock
#   tools/night.sh --list             the parts, and the most minutes that each may take
#
# Fails when a part has failed. The seed of the campaigns is the day's, so that each night tries others;
# QUORLIN_NIGHT_SEED sets it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

# Part, most minutes, command; MINUTES(n) is n minutes by the clock, or their share.
parts() {
    cat <<'END'
tests     90  ./test.sh --all
faults    15  build/release/bin/FaultCampaign --noises=3
hands     45  build/release/bin/HandsCampaign --seed SEED --minutes MINUTES(40)
seeds     65  many_seeds MINUTES(60)
crash     10  tools/crash.sh
files     60  QUORLIN_FILES_EVERY=1 build/release/bin/FilesTest
power     40  both_items
soak      75  tools/soak.sh MINUTES(60) SEED --plot
day       45  tools/soak.sh --day 8 SEED
tsan      90  ./test.sh --tsan
lifetime  45  build/asan/bin/LifetimeCampaign --rounds 100000 --seed SEED --minutes MINUTES(40)
fuzz      60  tools/fuzz.sh MINUTES(4)
mutants   90  tools/mutate.sh --seed SEED --minutes MINUTES(60)
coverage  60  tools/coverage.sh
END
}

# shellcheck disable=SC2317  # called by name
both_items() {
    local item
    for item in apt rx-path-loss; do
        tools/powercut.py --quorlin build/release/bin/quorlin --item "$item"
    done
}

# On both cores, half of the day's seeds each; 2,000 a night, as far as the minutes go. The log says from
# where a half would go on.
# shellcheck disable=SC2317  # called by name
many_seeds() {
    local first=$((10#${seed} * 2000 + 1)) other failed=0
    build/release/bin/HandsCampaign --seeds "$first..$((first + 999))" --minutes "$1" &
    other=$!
    build/release/bin/HandsCampaign --seeds "$((first + 1000))..$((first + 1999))" --minutes "$1" || failed=1
    wait "$other" || failed=1
    return "$failed"
}

# The command of a part, with the seed and the minutes in place.
command_of() {
    local text=$1 minutes
    text=${text//SEED/$seed}
    while [[ $text =~ MINUTES\(([0-9]+)\) ]]; do
        minutes=${BASH_REMATCH[1]}
        [ "$short" = no ] || minutes=$(((minutes + 19) / 20))
        text=${text//"MINUTES(${BASH_REMATCH[1]})"/$minutes}
    done
    echo "$text"
}

# Runs a part; its result is a line of the page.
run_part() {
    local name=$1 most=$2 text=$3 result=passed began=$SECONDS
    quorlin_say "$name: $text"
    export seed
    export -f both_items many_seeds quorlin_build quorlin_jobs quorlin_say
    timeout --kill-after=60 "${most}m" bash -euo pipefail -c "$text" >"$night/$name.log" 2>&1 || result=FAILED
    printf '%s|%s|%s|%s\n' "$commit" "$result" "$(((SECONDS - began + 59) / 60))" "$text" >"$night/$name.result"
    echo "$result"
}

write_page() {
    local name most text line
    {
        echo "# Night of $(date -u +%F), commit $commit"
        echo
        echo "| Part | Result | Minutes | Command |"
        echo "|---|---|---|---|"
        while read -r name most text; do
            line="|not run||$text"
            [ ! -f "$night/$name.result" ] || line=$(<"$night/$name.result")
            IFS='|' read -r at result minutes text <<<"$line"
            [ "$at" = "$commit" ] || result="$result (at ${at:-no commit})"
            echo "| $name | $result | $minutes | \`$text\` |"
        done < <(parts)
        echo
        for name in "$night"/*.result; do
            grep -q '|FAILED|' "$name" || continue
            name=$(basename "$name" .result)
            printf '## The end of %s.log\n\n' "$name"
            tail -n 15 "$night/$name.log" | sed 's/^/    /'
            echo
        done
    } >"$night/report.md"
}

short=no
wanted=()
for word in "$@"; do
    case "$word" in
        --short) short=yes ;;
        --list)
            parts
            exit
            ;;
        *)
            parts | grep -q "^$word " || {
                echo "usage: tools/night.sh [--list] [--short] [PART]..." >&2
                exit 2
            }
            wanted+=("$word")
            ;;
    esac
done

night=build/night
mkdir -p "$night"
commit=$(git rev-parse --short HEAD)
seed=${QUORLIN_NIGHT_SEED:-$(date -u +%y%m%d)}
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false' FONTCONFIG_FILE=$PWD/tests/fonts/dejavu-sans.conf
quorlin_need_packages build
quorlin_build release
failed=0
while read -r name most text <&3; do
    [ "${#wanted[@]}" -eq 0 ] || [[ " ${wanted[*]} " == *" $name "* ]] || continue
    if [ -f "$night/$name.result" ] && grep -q "^$commit|passed|" "$night/$name.result"; then
        echo "$name has passed."
        continue
    fi
    run_part "$name" "$most" "$(command_of "$text")"
    write_page
    grep -q '|passed|' "$night/$name.result" || failed=1
done 3< <(parts)
write_page
quorlin_say "$night/report.md"
exit "$failed"
