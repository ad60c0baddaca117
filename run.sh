#!/usr/bin/env bash
# Builds the tool and opens it on the simulated DUT. On a fresh Debian 12 it first installs what the
# build needs.
#
#   ./run.sh                     the tool, in the bench host
#   ./run.sh --profile c2k       options go to quorlin-host; --help lists them
#
# Without a display (neither DISPLAY nor WAYLAND_DISPLAY is set) it runs the demonstration instead,
# whose exit code it returns, and leaves a picture of the tool as build/release/quorlin-demo.png.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/setup.sh

packages=(build)
if [ -z "${DISPLAY:-}" ] && [ -n "${WAYLAND_DISPLAY:-}" ]; then
    packages+=(wayland)
fi
quorlin_need_packages "${packages[@]}"
quorlin_build release quorlin-host

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    quorlin_demo "$@"
else
    quorlin_say "Opening the tool"
    exec build/release/bin/quorlin-host "$@"
fi
