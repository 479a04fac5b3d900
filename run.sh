#!/usr/bin/env bash
# Builds the program and runs it.
#   ./run.sh              generates from the sample model into out/
#   ./run.sh window       opens the window
#   ./run.sh OPTIONS      hands the options to the program and ends with its exit code
#   ./run.sh qxgen ...    builds and runs the program for builds in its place, where the user stands
#   ./run.sh -q ...       any of these, without a word on what is installed, built and left to do
# Paths after -O, -P and -F count from where the user stands, although the program runs in bin/.
# QX_RUN_PROGRAM names, by an absolute path, a program to start in place of the one that is built here; nothing is
# installed and built then.
set -eu

here=$PWD
top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

export QX_QUIET=
if [ "${1-}" = -q ]; then
    QX_QUIET=1
    shift
fi

say() { # text
    [ -n "$QX_QUIET" ] || echo "$1" >&2
}

build() { # target
    local log="$top/build/run.log"
    "$top/.ci/setup" || exit
    mkdir -p "$top/build"
    say "building, log in $log"
    (cd "$top" && cmake --preset release && cmake --build --preset release --target "$1") >"$log" 2>&1 || {
        cat "$log" >&2
        exit 2
    }
}

if [ "${1-}" = qxgen ]; then
    shift
    [ -n "${QX_RUN_PROGRAM-}" ] || build qxgen
    exec "${QX_RUN_PROGRAM:-$top/bin/qxgen}" "$@"
fi

program=${QX_RUN_PROGRAM:-./codeGen}
[ -n "${QX_RUN_PROGRAM-}" ] || build codeGen

. "$top/appsrc/codeGenStarter/pathOptions.sh"

if [ $# -eq 0 ]; then
    mkdir -p "$top/out/sample"
    cp "$top/data/samples/sample.xml" "$top/out/sample/"
    translate --generate --all --outputDir "$top/out/sample" --fomDefFile "$top/out/sample/sample.xml"
elif [ "$1" = window ]; then
    shift
    translate "$@"
else
    translate "$@"
fi
mkdir -p "$top/bin"
cd "$top/bin"
code=0
"$program" ${arguments[@]+"${arguments[@]}"} || code=$?

# Below this directory the makefile finds the stand-in of the toolkit by itself.
tell_output() {
    local toolkit=' QX_DIR=/path/of/the/toolkit'
    case $output in "$top"/*) toolkit= ;; esac
    if [ -e "$output/cpp\\Makefile" ]; then
        say "output in $output; next: cd $(printf %q "$output") && make -j$(nproc) -f 'cpp\\Makefile'$toolkit"
    elif [ -d "$output" ]; then
        say "output in $output"
    fi
}
[ -z "$output" ] || tell_output
exit "$code"
