#!/usr/bin/env bash
# Looks whether programs and libraries are hardened as cmake/Hardening.cmake has it. Fails when one is not,
# and says in what.
#
#   scripts/hardening.sh FILE...
#
# Of the two things that a file cannot show by itself, the stack protector is seen by what it calls, and so are
# fortified functions: a file that prints has to print by them. Instances of the standard library may not.
set -euo pipefail

# A file in whose code no function has a buffer.
readonly kNoBuffers=' libVondApp.so '

quorlin_hardening() {
    local file=$1 head dynamic calls prints
    head=$(readelf -hlW "$file")
    dynamic=$(readelf -dW "$file")
    calls=$(readelf -W --dyn-syms "$file" | awk '$7 == "UND" { sub(/@.*/, "", $8); print $8 }')
    prints=$(grep -xE 'v?(f|d|s|sn)?printf' <<<"$calls" || true)

    grep -q 'Type: *DYN' <<<"$head" || echo "is no PIE"
    grep -q GNU_RELRO <<<"$head" || echo "has no relro"
    grep -qE '\(FLAGS(_1)?\).*(BIND_NOW|NOW)' <<<"$dynamic" || echo "binds functions late (no -z now)"
    grep -qE 'GNU_STACK.* RW ' <<<"$head" || echo "has a stack that code runs on"
    ! grep -q TEXTREL <<<"$dynamic" || echo "is changed where it is loaded (TEXTREL)"
    ! grep -E 'R(UN)?PATH' <<<"$dynamic" | grep -qE '\[[^$]|:[^$]+\]' || echo "finds libraries in a folder of the build"
    grep -qx __stack_chk_fail <<<"$calls" || [[ $kNoBuffers == *" ${file##*/} "* ]] || echo "has no stack protector"
    [ -z "$prints" ] || grep -qE '^__.*printf_chk$' <<<"$calls" || echo "prints by functions that are not fortified"
}

if [ $# -eq 0 ]; then
    echo "usage: scripts/hardening.sh FILE..." >&2
    exit 2
fi
failed=0
for file; do
    if ! readelf -h "$file" >/dev/null 2>&1; then
        echo "$file is no program and no library." >&2
        exit 2
    fi
    found=$(quorlin_hardening "$file")
    if [ -n "$found" ]; then
        failed=1
        while read -r what; do echo "$file $what"; done <<<"$found"
    else
        echo "$file: hardened"
    fi
done
exit "$failed"
