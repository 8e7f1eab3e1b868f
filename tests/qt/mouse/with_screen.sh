#!/usr/bin/env bash
# Runs a program, a minute at most, on a screen of its own; exits with 77 where none can be had.
# Usage: with_screen.sh PROGRAM ARGUMENT...
set -uo pipefail

for tool in Xvfb xdotool; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: $tool is missing (.ci/pakete test installs it)"
        exit 77
    fi
done
exec {screen}< <(exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp 2>/dev/null)
server=$!
trap 'kill "$server" 2>/dev/null' EXIT
read -r -t 20 -u "$screen" number || { echo "Xvfb does not start" && exit 1; }
DISPLAY=:$number timeout 60 "$@"
