#!/usr/bin/env bash
# Tests how run.sh hands its options to the program: a copy of it starts a program of the test, which notes where it
# stands and what it was given, and nothing is built.
#   testRunScript.sh REPOSITORY
set -eu

repository=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
user=$work/user
mkdir -p "$work/top/data/samples" "$user"
cp "$repository/run.sh" "$work/top/"
cp "$repository/data/samples/sample.xml" "$work/top/data/samples/"
touch "$user/here.xml" "$user/with blank.xml"

cat >"$work/program" <<'END'
#!/usr/bin/env bash
{
    printf '%s\n' "$PWD"
    for argument; do printf '<%s>\n' "$argument"; done
} >"$QX_NOTES"
exit "${QX_CODE:-0}"
END
chmod +x "$work/program"
export QX_RUN_PROGRAM=$work/program QX_NOTES=$work/notes

failures=0
fail() { # what went wrong
    echo "FAIL: $1" >&2
    failures=$((failures + 1))
}

# Runs the script from where the user stands.
run() { # options
    rm -f "$QX_NOTES"
    (cd "$user" && "$work/top/run.sh" "$@")
}

# What the program must have been given, one expected argument each.
expect() { # test arguments
    local test=$1 expected
    shift
    expected=$(printf '%s\n' "$work/top/bin"; for argument; do printf '<%s>\n' "$argument"; done)
    if [ "$expected" = "$(cat "$QX_NOTES")" ]; then
        echo "PASS: $test"
    else
        fail "$test"
        diff <(printf '%s\n' "$expected") "$QX_NOTES" >&2 || true
    fi
}

run -G -A -O out -P p.qxproj -F here.xml
expect shortFormsAreMadeAbsolute -G -A -O "$user/out" -P "$user/p.qxproj" -F "$user/here.xml"

run --generate --all --outputDir out/ --project sub/p.qxproj --fomDefFile here.xml
expect longFormsAreMadeAbsolute --generate --all --outputDir "$user/out/" --project "$user/sub/p.qxproj" \
    --fomDefFile "$user/here.xml"

run "-O out" "--project a b.qxproj" "--fomDefFile with blank.xml" "-F gone.xml"
expect optionAndValueInOneArgument "-O $user/out" "--project $user/a b.qxproj" "--fomDefFile $user/with blank.xml" \
    "-F gone.xml"

run -F gone.xml -F here.xml --fomDefFile sub/gone.xml
expect modelThatIsNotThereStaysAsItIs -F gone.xml -F "$user/here.xml" --fomDefFile sub/gone.xml

run -O /a/out -P /a/p.qxproj -F /a/gone.xml
expect absolutePathsStay -O /a/out -P /a/p.qxproj -F /a/gone.xml

run --outputDir "" -F "with blank.xml" -O "back\\slash\\"
expect emptyAndOddValues --outputDir "" -F "$user/with blank.xml" -O "$user/back\\slash\\"

run -I here.xml -p here.xml --includeDir sub --classPrefix Qx
expect includeDirectoryAndPrefixAreNoPaths -I here.xml -p here.xml --includeDir sub --classPrefix Qx

run -I -O -p -F --includeDir --project
expect valueThatLooksLikeAnOptionIsAValue -I -O -p -F --includeDir --project

run -GA --outputDir=out foo -O
expect whatIsNoPathOptionStays -GA --outputDir=out foo -O

run -O out -- -O out
expect restBehindTwoDashesStays -O "$user/out" -- -O out

run window
expect windowStartsWithoutOptions

run window -F here.xml
expect windowTakesOptions -F "$user/here.xml"

run
expect noOptionsGenerateFromACopyOfTheSample --generate --all --outputDir "$work/top/out/sample" \
    --fomDefFile "$work/top/out/sample/sample.xml"
cmp "$work/top/out/sample/sample.xml" "$repository/data/samples/sample.xml" || fail sampleIsCopied
[ "$(ls "$work/top/data/samples")" = sample.xml ] || fail sampleFolderStaysAsItIs

for code in 0 1 7; do
    given=0
    QX_CODE=$code run -G || given=$?
    if [ "$given" = "$code" ]; then echo "PASS: endsWithExitCode $code"; else fail "ends with $given, not $code"; fi
done

[ "$failures" = 0 ] || exit 1
