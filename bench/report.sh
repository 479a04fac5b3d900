#!/usr/bin/env bash
# Prints the table of docs/performance.md: bench/report.sh [DIRECTORY]
#
# Works below DIRECTORY, /dev/shm when none is named. Real models are taken from QX_SHARED_DIR, ../shared when that is
# not set, and their rows are left out where they are not there; so are the rows of other programs that are not
# installed: .ci/setup python3-jinja2 python3-lxml protobuf-compiler flatbuffers-compiler
# Each figure is the median of nine rounds, QX_ROUNDS when that is set. QX_PYTHON names another Python. Programs are measured in turns.
set -eu

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bench=$top/build/release/bench/generationBench
peers=$top/bench/peers
models=${QX_SHARED_DIR:-$top/../shared}/models
rounds=${QX_ROUNDS:-9}
python=${QX_PYTHON:-python3}
work=$(mktemp -d "${1:-/dev/shm}/report-XXXXXX")
trap 'rm -rf "$work"' EXIT

if [ ! -x "$bench" ]; then
    echo "Build it first: cmake --preset release && cmake --build build/release --target generationBench" >&2
    exit 2
fi

rpr=$models/1516-2000/RPR_FOM_v2.0_1516-2000.xml
modules=()
for module in Foundation Enumerations Base Physical Warfare Switches; do
    modules+=("$models/1516-2010/rpr2/RPR-${module}_v2.0.xml")
done

row() { printf '| %s | %s |\n' "$1" "$2"; }
run() { "$bench" --rounds "$rounds" "$@" 2>/dev/null; }
ratio() { sed -n 's/^median .*ratio //p'; }
median() { sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
# Processor seconds of a program and of its children.
seconds() {
    TIMEFORMAT='%U %S'
    { time "$@" >/dev/null 2>&1; } 2>&1 | awk '{ print $1 + $2 }'
}
per_megabyte() { awk -v seconds="$1" -v bytes="$2" 'BEGIN { print seconds / (bytes / 1e6) }'; }
over() { awk -v left="$1" -v right="$2" 'BEGIN { printf "%.2f", left / right }'; }
bytes_in() { find "$1" -type f -printf '%s\n' | awk '{ sum += $1 } END { print sum }'; }

real_models() {
    local out
    out=$(run --again "$work" "$rpr")
    row "RPR as 1516-2000 against \`cp -r\`" "$(ratio <<<"$out")"
    row "its peak memory, MB" "$(sed -n 's/^peak MB //p' <<<"$out")"
    row "second run, nothing changed, over the first" "$(sed -n 's/^again.*run //p' <<<"$out")"
    row "six RPR modules against \`cp -r\`" "$(run "$work" "${modules[@]}" | ratio)"
    out=$(run --script genHtml.txt --script genPython.txt --script genJson.txt "$work" "$rpr")
    row "three scripts together, RPR as 1516-2000, seconds" "$(sed -n 's/^median \([0-9.]*\) s.*/\1/p' <<<"$out")"
    out=$(run --load "$work" "$rpr")
    row "loading RPR as 1516-2000 over a parse and walk" "$(ratio <<<"$out")"
    row "loading the six RPR modules over a parse and walk" "$(run --load "$work" "${modules[@]}" | ratio)"
}

made_up_models() {
    local out small large
    rounds=$(((rounds + 2) / 3))
    for shape in classes siblings namesakes datatypes; do
        out=$(run --shape $shape --count 1000 "$work")
        small=$(sed -n 's/^median.*user \([0-9.]*\);.*/\1/p' <<<"$out")
        [ $shape != classes ] || row "1,000 made-up classes against \`cp -r\`" "$(ratio <<<"$out")"
        out=$(run --shape $shape --count 10000 "$work")
        large=$(sed -n 's/^median.*user \([0-9.]*\);.*/\1/p' <<<"$out")
        if [ $shape = classes ]; then
            row "10,000 made-up classes against \`cp -r\`" "$(ratio <<<"$out")"
            row "their peak memory, MB" "$(sed -n 's/^peak MB //p' <<<"$out")"
        fi
        row "user time, 10,000 over 1,000 $shape" "$(over "$large" "$small")"
    done
}

# Twelve templates of many lines for few classes, or of few lines for many.
jinja() { # name, lines, lines in the loop, classes
    local round own=() other=() bytes measured
    cp -r "$top/data" "$work/data-$1"
    "$python" "$peers/templates.py" "$work/data-$1" "$work/$1" "$2" "$3"
    "$bench" --count "$4" --attributes 15 --write-model "$work/$1.xml" "$work" 2>/dev/null
    for ((round = 0; round < rounds; ++round)); do
        measured=$("$bench" --rounds 1 --data "$work/data-$1" --no-examples --no-mim "$work" "$work/$1.xml" 2>/dev/null)
        bytes=$(sed -n 's/^bytes //p' <<<"$measured")
        own+=("$(per_megabyte "$(sed -n 's/^median \([0-9.]*\) s.*/\1/p' <<<"$measured")" "$bytes")")
        read -r _ bytes measured < <("$python" "$peers/jinja.py" "$work/$1.xml" "$work/$1" "$work/out")
        rm -rf "$work/out"
        other+=("$(per_megabyte "$measured" "$bytes")")
    done
    row "Jinja2's seconds per MB of output over ours, $1 templates" \
        "$(over "$(printf '%s\n' "${other[@]}" | median)" "$(printf '%s\n' "${own[@]}" | median)")"
}

schema_compiler() { # name, ending of schemas, compiler with its options
    local round own=() other=() bytes measured name=$1 kind=$2
    shift 2
    "$python" "$peers/schema.py" "$kind" 1000 15 >"$work/bench.$kind"
    mkdir -p "$work/schema"
    for ((round = 0; round < rounds; ++round)); do
        measured=$("$bench" --rounds 1 --no-examples --no-mim --count 1000 --attributes 15 "$work" 2>/dev/null)
        bytes=$(sed -n 's/^bytes //p' <<<"$measured")
        own+=("$(per_megabyte "$(sed -n 's/^median \([0-9.]*\) s.*/\1/p' <<<"$measured")" "$bytes")")
        measured=$(cd "$work" && seconds "$@" "bench.$kind")
        other+=("$(per_megabyte "$measured" "$(bytes_in "$work/schema")")")
    done
    row "our seconds per MB of output over $name's, 1,000 classes against 1,000 messages" \
        "$(over "$(printf '%s\n' "${own[@]}" | median)" "$(printf '%s\n' "${other[@]}" | median)")"
    rm -rf "$work/schema"
}

echo "| figure | value |"
echo "|---|---|"
[ ! -r "$rpr" ] || real_models
made_up_models
if "$python" -c 'import jinja2, lxml.etree' 2>/dev/null; then
    jinja heavy 150 10 100
    jinja light 56 4 334
fi
! command -v protoc >/dev/null || schema_compiler protoc proto protoc --cpp_out=schema
! command -v flatc >/dev/null || schema_compiler flatc fbs flatc --cpp -o schema
