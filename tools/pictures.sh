#!/usr/bin/env bash
# Takes the pictures of docs/images anew, as tools/pictures/manual.txt says: each window at 100 % and 150 %,
# light and dark. Needs no display.
#
#   tools/pictures.sh              docs/images, and dark, 150 and 150-dark in it
#   tools/pictures.sh FOLDER       into another folder
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

to=${1:-docs/images}
quorlin_need_packages build
quorlin_build release pictures QuorlinPlots QuorlinCal
export FONTCONFIG_FILE=$PWD/tests/fonts/dejavu-sans.conf QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96
# Nothing of the user's is in the pictures, and nothing of theirs is left behind.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
# A backup is named in a question, and not made.
for look in :1: dark:1:--dark 150:1.5: 150-dark:1.5:--dark; do
    IFS=: read -r folder scale dark <<<"$look"
    rm -rf "${home:?}"/*
    mkdir -m 700 "$home/run"
    # shellcheck disable=SC2086  # no word where it is light
    XDG_CONFIG_HOME=$home XDG_DATA_HOME=/home/engineer/.local/share XDG_RUNTIME_DIR=$home/run QT_SCALE_FACTOR=$scale \
        QT_LOGGING_RULES='*=false' build/release/bin/pictures $dark \
        --script tools/pictures/manual.txt --to "$to/$folder" build/release/plugins/libQuorlinRf.so
done
