#!/usr/bin/env bash
# Runs a program on an X server of its own, with a window manager: without one no window gets the
# focus, and keys go nowhere.
#
# usage: on_display.sh PROGRAM [ARGUMENT...]
set -uo pipefail

if [ "${1:-}" != --inside ]; then
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" --inside "$@"
fi
shift
openbox --sm-disable &
manager=$!
"$@"
status=$?
kill "$manager" 2>/dev/null
exit "$status"
