#!/usr/bin/env bash
# Kills a save of calibration data at each of its system calls, and fills its disk at each, and
# prints what held, by system call. Builds the release test that does it where it is missing.
#
#   tools/crash.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

test=build/release/bin/CalCrashTest
if [ ! -x "$test" ]; then
    cmake --preset release >/dev/null
    cmake --build --preset release --target CalCrashTest
fi
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='quorlin.*.debug=false'
status=0
output=$("$test" --gtest_color=no 2>&1) || status=$?
# The tables with the tests they belong to, and whatever did not hold.
grep -E '^(\||old file|\[ RUN|\[  (FAILED|SKIPPED|PASSED)|.*(Failure|forbids))' <<<"$output"
exit "$status"
