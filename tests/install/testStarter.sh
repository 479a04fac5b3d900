#!/usr/bin/env bash
# Tests the installed codeGen, the script that gives each user a run directory: it starts a program of the test, which
# notes where it stands and what it was given.
#   testStarter.sh REPOSITORY PREFIX
. "$(dirname "${BASH_SOURCE[0]}")/support.sh"
repository=$1
# A copy that can be changed as an update does.
prefix=$work/prefix
mkdir -p "$prefix/libexec"
cp -r "$2/bin" "$2/share" "$prefix/"
cp -r "$2/libexec/quorvex-codegen" "$prefix/libexec/"
shipped=$prefix/share/quorvex-codegen/data
user=$work/user
mkdir "$user"
cd "$user"
touch here.xml "with blank.xml"

cat >"$work/program" <<'END'
#!/usr/bin/env bash
{
    pwd
    for argument; do printf '<%s>\n' "$argument"; done
} >"$QX_NOTES"
exit "${QX_CODE:-0}"
END
chmod +x "$work/program"
export QX_RUN_PROGRAM=$work/program QX_NOTES=$work/notes HOME=$work/home
mkdir "$HOME"

status=0
word=
run() { # options
    rm -f "$QX_NOTES"
    status=0
    word=$("$prefix/bin/codeGen" "$@" 2>&1) || status=$?
}
ran_in() {
    head -1 "$QX_NOTES"
}
expect() { # test arguments
    local test=$1
    shift
    same "$test" "$(for argument; do printf '<%s>\n' "$argument"; done)" "$(tail -n +2 "$QX_NOTES")"
}
config=$HOME/.config/quorvex-codegen

# Options.
run -G -A -O out -P p.qxproj -F here.xml "-F with blank.xml" -F gone.xml -p Qx
expect pathsCountFromWhereTheUserStands -G -A -O "$user/out" -P "$user/p.qxproj" -F "$user/here.xml" \
    "-F $user/with blank.xml" -F gone.xml -p Qx
same saysNothingWhenAllIsWell "" "$word"
run
expect noArgumentsAreNone
QX_CODE=7 run
same endsWithTheCodeOfTheProgram 7 "$status"
ln -s "$prefix/bin/codeGen" "$work/link"
rm "$QX_NOTES"
"$work/link" -O out
expect aLinkStartsItToo -O "$user/out"

# The run directory.
place=$(ran_in)
case $place in
    "$HOME"/.cache/quorvex-codegen/run-*/bin) pass programRunsInTheCacheOfTheUser ;;
    *) fail programRunsInTheCacheOfTheUser "$place" ;;
esac
data=$(dirname "$place")/data
check allShippedDataIsThere diff -r "$shipped" "$data"
check configurationIsTheDirectoryOfTheUser test "$data/config" -ef "$config" -a -L "$data/config"
# The program saves by renaming over the file.
printf 'saved' >"$data/config/new" && mv "$data/config/new" "$data/config/customCodeGenConfig.xml"
same savedConfigurationIsInTheDirectoryOfTheUser saved "$(cat "$config/customCodeGenConfig.xml")"
run
same configurationThatCannotBeReadStays saved "$(cat "$config/customCodeGenConfig.xml")"

# An update.
sed 's/prefixName" value=""/prefixName" value="Mine"/; /includeStandardMIM/d' "$shipped/config/codeGenConfig.xml" \
    >"$config/customCodeGenConfig.xml"
sed -i 's,</defaults>,<var name="newKey" value="new"/></defaults>,' "$shipped/config/codeGenConfig.xml"
echo '<!-- new -->' >>"$shipped/config/codeGenConfig.dtd"
mkdir "$shipped/config/added"
touch "$shipped/genAdded.txt"
rm "$shipped/genHtml.txt" "$shipped/config/deployment.xml"
touch "$config/own.txt"
ln -s /gone/elsewhere "$config/ownLink"
run
holds newShippedKeyIsGot 'name="newKey" value="new"' "$(cat "$config/customCodeGenConfig.xml")"
holds missingShippedKeyIsGot 'includeStandardMIM' "$(cat "$config/customCodeGenConfig.xml")"
holds keysOfTheUserStay 'name="prefixName" value="Mine"' "$(cat "$config/customCodeGenConfig.xml")"
same shippedFilesAreRenewed "$(cat "$shipped/config/codeGenConfig.dtd")" "$(cat "$config/codeGenConfig.dtd")"
check newShippedFileIsThere test -e "$data/genAdded.txt" -a -d "$config/added"
check shippedFileThatIsGoneIsGone test ! -L "$data/genHtml.txt" -a ! -L "$config/deployment.xml"
check filesOfTheUserStay test -e "$config/own.txt" -a -L "$config/ownLink"
same updateIsSilent "" "$word"

# A file in place of a link is the user's.
rm "$config/codeGenConfig.xml"
cp "$shipped/config/codeGenConfig.xml" "$config/"
echo '<!-- mine -->' >>"$config/codeGenConfig.xml"
run
holds fileInPlaceOfALinkStays mine "$(cat "$config/codeGenConfig.xml")"

# The installation has moved: a run directory of its own, and the links of the configuration lead there.
mv "$prefix" "$work/moved"
prefix=$work/moved
run
check movedInstallationHasItsOwnRunDirectory test "$(ran_in)" != "$place"
check linksLeadToTheMovedData \
    test "$config/codeGenConfig.dtd" -ef "$prefix/share/quorvex-codegen/data/config/codeGenConfig.dtd"
mv "$prefix" "$work/prefix"
prefix=$work/prefix
rm -rf "$HOME/.cache"
run
check lostCacheIsMadeAnew diff -r "$shipped/templates" "$data/templates"

# Two users, and two starts at once.
HOME=$work/second run
check eachUserHasHisOwn \
    test "$(ran_in)" != "$place" -a ! -e "$work/second/.config/quorvex-codegen/customCodeGenConfig.xml"
third=$work/third
for number in 1 2 3 4 5 6; do
    HOME=$third QX_NOTES=$work/notes$number "$prefix/bin/codeGen" >"$work/word$number" 2>&1 &
done
wait
same startsAtOnceAreSilent "" "$(cat "$work"/word?)"
for number in 1 2 3 4 5 6; do
    cmp -s "$work/notes1" "$work/notes$number" || fail startsAtOnceAllRun
done
same startsAtOnceLeaveNothingHalf "" "$(find "$third" -name '*.[0-9]*')"

# The variables for directories.
XDG_CONFIG_HOME=$work/conf XDG_CACHE_HOME="$work/my cache" HOME= run
case $(ran_in) in
    "$work/my cache"/quorvex-codegen/run-*) pass variablesNameTheDirectories ;;
    *) fail variablesNameTheDirectories "$(ran_in)" ;;
esac
check configurationGoesWithItsVariable test -L "$work/conf/quorvex-codegen/codeGenConfig.xml"
XDG_CONFIG_HOME=relative run
check relativeVariableDoesNotCount test ! -e relative
(
    unset HOME
    run -G
    [ "$status" = 2 ] && [ "$word" = "codeGen: neither HOME nor XDG_CONFIG_HOME is set to an absolute path, so there is \
no place for files of yours." ]
) && pass missingHomeIsTold || fail missingHomeIsTold
echo file >"$work/no directory"
HOME="$work/no directory" run
same homeThatCannotBeWrittenEndsWith5 5 "$status"
holds homeThatCannotBeWrittenIsTold "XDG_CONFIG_HOME can name another place." "$word"
same homeThatCannotBeWrittenIsOneLine 1 "$(printf '%s\n' "$word" | wc -l)"
XDG_CACHE_HOME="$work/no directory" run
holds cacheThatCannotBeWrittenIsTold "XDG_CACHE_HOME can name another place." "$word"
check programDoesNotRunThen test ! -e "$QX_NOTES"

# Parts that are missing.
QX_RUN_PROGRAM=/gone run
same missingProgramIsTold "2 codeGen: there is no program /gone; install it again." "$status $word"
QX_DATA_DIR=/gone run
same missingDataIsTold "2 codeGen: there is no data directory /gone; install it again, or name one by QX_DATA_DIR." \
    "$status $word"
mkdir "$user/other"
cp -r "$repository/data" "$user/other/"
QX_DATA_DIR=other/data run
check dataDirectoryMayBeNamed test "$(dirname "$(ran_in)")/data/templates" -ef "$user/other/data/templates"

# qxgen opens the window from anywhere.
export QT_QPA_PLATFORM=offscreen
"$prefix/bin/qxgen" window here.xml
expect qxgenStartsTheWindow -F "$user/here.xml"
same qxgenStartsItInTheRunDirectory "$place" "$(ran_in)"
"$prefix/bin/qxgen" window --data-dir "$user/other/data"
check qxgenHandsOnItsDataDirectory test "$(dirname "$(ran_in)")/data/templates" -ef "$user/other/data/templates"
end_tests
