#!/usr/bin/env bash
# Tests how run.sh hands its options to the program: a copy of it starts a program of the test, which notes where it
# stands and what it was given, and nothing is built.
#   testRunScript.sh REPOSITORY
set -eu

repository=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
user=$work/user
mkdir -p "$work/top/data/samples" "$work/top/appsrc/codeGenStarter" "$user"
cp "$repository/run.sh" "$work/top/"
cp "$repository/appsrc/codeGenStarter/pathOptions.sh" "$work/top/appsrc/codeGenStarter/"
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

# What the program must have been given, one expected argument each, and where it must have stood.
expect() { # test arguments
    expect_at "$work/top/bin" "$@"
}

expect_at() { # directory test arguments
    local directory=$1 test=$2 expected
    shift 2
    expected=$(printf '%s\n' "$directory"; for argument; do printf '<%s>\n' "$argument"; done)
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

run qxgen generate here.xml -o out
expect_at "$user" qxgenRunsWhereTheUserStands generate here.xml -o out
run -q qxgen --help
expect_at "$user" qxgenMayBeQuiet --help

run
expect noOptionsGenerateFromACopyOfTheSample --generate --all --outputDir "$work/top/out/sample" \
    --fomDefFile "$work/top/out/sample/sample.xml"
cmp "$work/top/out/sample/sample.xml" "$repository/data/samples/sample.xml" || fail sampleIsCopied
[ "$(ls "$work/top/data/samples")" = sample.xml ] || fail sampleFolderStaysAsItIs

# What the script itself says on standard error must be this line, nothing when it is empty.
expect_word() { # test line
    if [ "$2" = "$(cat "$work/word")" ]; then
        echo "PASS: $1"
    else
        fail "$1: $(cat "$work/word")"
    fi
}

mkdir -p "$user/built" "$user/other out"
touch "$user/built/cpp\\Makefile"
run -G -O built 2>"$work/word"
expect_word endsWithOutputAndNextStep \
    "output in $user/built; next: cd $user/built && make -j$(nproc) -f 'cpp\\Makefile' QX_DIR=/path/of/the/toolkit"
run "-O other out" 2>"$work/word"
expect_word outputWithoutMakefileHasNoNextStep "output in $user/other out"
run -O gone 2>"$work/word"
expect_word outputThatIsNotThereIsNotNamed ""
run window 2>"$work/word"
expect_word windowEndsWithoutAWord ""
touch "$work/top/out/sample/cpp\\Makefile"
run 2>"$work/word"
expect_word sampleIsBuiltWithTheToolkitOfTheCheckout \
    "output in $work/top/out/sample; next: cd $work/top/out/sample && make -j$(nproc) -f 'cpp\\Makefile'"
run -q -G -O built 2>"$work/word"
expect_word quietFirstWordKeepsTheWordBack ""
expect quietFirstWordIsNotHandedOn -G -O "$user/built"
run -G -q 2>"$work/word"
expect quietElsewhereIsTheProgramsOwn -G -q

# The set-up script with the commands of a machine on which "there" alone is installed, and what it must do and say.
tools=$work/tools
mkdir -p "$tools" "$work/top/.ci"
cp "$repository/.ci/setup" "$work/top/.ci/"
command_of_machine() { # name body
    printf '#!/bin/bash\n%s\n' "$2" >"$tools/$1"
    chmod +x "$tools/$1"
}
for name in bash cat dirname grep env mkdir; do ln -s "$(command -v $name)" "$tools/$name"; done
command_of_machine dpkg-query 'echo look >>"$QX_NOTES"; [ "${*: -1}" = gone ] || echo "install ok installed"'
command_of_machine apt-get 'echo "apt-get $*" >>"$QX_NOTES"'
command_of_machine id 'echo "$QX_USER"'

set_up() { # user packages
    rm -f "$QX_NOTES"
    touch "$QX_NOTES"
    status=0
    (cd "$user" && QX_USER=$1 PATH=$tools "$work/top/.ci/setup" "${@:2}") >"$work/word" 2>&1 || status=$?
}

# Word and notes must hold the texts; an empty one says nothing.
expect_set_up() { # test status word notes
    if [ "$2" = "$status" ] && [[ $(cat "$work/word") == *"$3"* && $(cat "$QX_NOTES") == *"$4"* ]]; then
        echo "PASS: $1"
    else
        fail "$1: $status; $(cat "$work/word"); $(cat "$QX_NOTES")"
    fi
}

set_up 1000 gone
expect_set_up withoutSudoTheLineForAnAdministratorIsPrinted 1 \
    'As root: apt-get update && apt-get install -y --no-install-recommends gone' look
[ ! -e "$work/top/build/packages" ] || fail missingPackagesAreNotNoted
set_up 0 gone
expect_set_up missingPackagesAreInstalled 0 'installing gone' 'apt-get install -y --no-install-recommends gone'
set_up 0 gone
if [ "$status" = 0 ] && [ ! -s "$work/word" ] && [ ! -s "$QX_NOTES" ]; then
    echo "PASS: notedPackagesAreNotLookedForAgain"
else
    fail notedPackagesAreNotLookedForAgain
fi
set_up 0 gone further
expect_set_up furtherPackagesAreLookedFor 0 '' look
[ "$(wc -l <"$QX_NOTES")" = 1 ] || fail onlyFurtherPackagesAreLookedFor
rm -r "$work/top/build"
touch "$work/top/build" # nowhere to note anything
set_up 0 there
expect_set_up noteThatCannotBeWrittenIsNoFault 0 '' look
rm "$work/top/build"
QX_QUIET=1 set_up 0 gone
if grep -q installing "$work/word"; then fail quietSetUp; else echo "PASS: quietSetUp"; fi

for code in 0 1 7; do
    given=0
    QX_CODE=$code run -G || given=$?
    if [ "$given" = "$code" ]; then echo "PASS: endsWithExitCode $code"; else fail "ends with $given, not $code"; fi
done

[ "$failures" = 0 ] || exit 1
