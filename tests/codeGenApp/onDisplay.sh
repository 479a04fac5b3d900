#!/usr/bin/env bash
# Runs a program on a display of its own, under a window manager, and ends with its exit code:
#   onDisplay.sh PROGRAM [ARGUMENT]...
# Without QX_FULL it does nothing and says so, in the form of a skipped test.
set -eu

if [ -z "${QX_FULL-}" ]; then
    echo "SKIP   : TestOnDisplay::everything() needs a display and a window manager, and runs with QX_FULL set"
    exit 0
fi

scratch=$(mktemp -d)
server=''
manager=''
finish() {
    for process in $manager $server; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap finish EXIT

# The server writes its number when it is ready.
mkfifo "$scratch/number"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$scratch/number" 2>"$scratch/server.log" &
server=$!
if ! read -r -t 30 number <"$scratch/number"; then
    cat "$scratch/server.log" >&2
    exit 1
fi
export DISPLAY=:$number HOME=$scratch
openbox >"$scratch/manager.log" 2>&1 &
manager=$!

# Leaks are looked for without a display; the libraries behind one have their own.
QT_QPA_PLATFORM=xcb ASAN_OPTIONS=detect_leaks=0:intercept_tls_get_addr=0 "$@"
