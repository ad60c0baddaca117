#!/usr/bin/env bash
# Changes the product in small ways, one at a time (a relation, a constant, a condition, arithmetic, a call left
# out), and sees whether a test notices. All mutants of a sample are in one build, in a copy of the tree in
# build/mutants; an environment variable brings one of them to life (tools/mutants/Mutant.h). Each test tells
# which mutants it reaches, and a mutant is judged by those that reach it, the quickest first (and before them
# those that noticed others of its file), until one fails, crashes, or takes five times as long as without it.
# Tests that take longer than --longest judge nothing: what only they could notice is "unknown", as is a mutant
# whose tests took longer than --most. A run with a larger --most goes on with those.
#
#   tools/mutate.sh                          200 mutants, of seed 1
#   tools/mutate.sh --count 50 --seed 7      others
#   tools/mutate.sh --only Operations        of a folder
#   tools/mutate.sh --minutes 30             begins none after half an hour
#   tools/mutate.sh --again --seed 7         once more those of a sample that no test noticed
#   tools/mutate.sh --built --most 60        on the copy as it is built, a minute of tests for each
#   tools/mutate.sh --report                 what is known of all samples
#
# What is known is in build/mutants/results.jsonl; a mutant that is there is not judged again, so a run that
# was cut off goes on where it was. Ends with a table and each mutant that no test noticed, and fails when
# fewer than 95 % were noticed of those that tools/mutants/equivalent.txt does not explain.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

quorlin_need_packages build
exec python3 tools/mutate.py "$@"
