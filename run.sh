#!/usr/bin/env bash
# Builds the program and runs it.
#   ./run.sh              generates from the sample model into out/
#   ./run.sh window       opens the window
#   ./run.sh OPTIONS      hands the options to the program and ends with its exit code
# Paths after -O, -P and -F count from where the user stands, although the program runs in bin/.
# QX_RUN_PROGRAM names, by an absolute path, a program to start in place of the one that is built here; nothing is
# installed and built then.
set -eu

here=$PWD
top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

build() {
    local log="${TMPDIR:-/tmp}/quorvex-build.$$.log"
    "$top/.ci/setup"
    (cd "$top" && cmake --preset release && cmake --build --preset release --target codeGen) >"$log" 2>&1 || {
        cat "$log" >&2
        exit 2
    }
    rm -f "$log"
}

program=${QX_RUN_PROGRAM:-./codeGen}
[ -n "${QX_RUN_PROGRAM-}" ] || build

# A model that is not there stays as it is, so that the program can search for it.
absolute() { # option value
    case $2 in
        /* | "") printf '%s' "$2" ;;
        *) if [ "$1" = F ] && [ ! -e "$here/$2" ]; then printf '%s' "$2"; else printf '%s' "$here/$2"; fi ;;
    esac
}

letter() { # option name
    case $1 in
        -O | --outputDir) printf O ;;
        -P | --project) printf P ;;
        -F | --fomDefFile) printf F ;;
    esac
}

arguments=()
translate() {
    local kind name
    while [ $# -gt 0 ]; do
        case $1 in
            --) arguments+=("$@"); return ;;
            "-O "* | "-P "* | "-F "* | "--outputDir "* | "--project "* | "--fomDefFile "*) # both in one argument
                name=${1%% *}
                arguments+=("$name $(absolute "$(letter "$name")" "${1#* }")")
                ;;
            *)
                arguments+=("$1")
                kind=$(letter "$1")
                if [ -n "$kind" ] && [ $# -gt 1 ]; then
                    shift
                    arguments+=("$(absolute "$kind" "$1")")
                elif [ $# -gt 1 ] && { [ "$1" = -I ] || [ "$1" = --includeDir ] || [ "$1" = -p ] || [ "$1" = --classPrefix ]; }; then
                    shift
                    arguments+=("$1")
                fi
                ;;
        esac
        shift
    done
}

if [ $# -eq 0 ]; then
    mkdir -p "$top/out/sample"
    cp "$top/data/samples/sample.xml" "$top/out/sample/"
    arguments=(--generate --all --outputDir "$top/out/sample" --fomDefFile "$top/out/sample/sample.xml")
elif [ "$1" = window ]; then
    shift
    translate "$@"
else
    translate "$@"
fi
mkdir -p "$top/bin"
cd "$top/bin"
exec "$program" ${arguments[@]+"${arguments[@]}"}
