#!/usr/bin/env bash
# Tests what is installed, where a moved installation finds its parts, and that it can be taken away again.
#   testInstall.sh REPOSITORY BUILD
. "$(dirname "${BASH_SOURCE[0]}")/support.sh"
repository=$1
build=$2
prefix=$work/first
log=$work/log

install() { # options
    cmake --install "$build" "$@" >"$log" 2>&1 || fail install "$(tail -5 "$log")"
}
# Files and links below a directory, by their names relative to it.
files() { # directory
    (cd "$1" && find . ! -type d -printf '%P\n' | LC_ALL=C sort)
}
directories() { # directory
    (cd "$1" && find . -type d | LC_ALL=C sort)
}

# Each component by itself, into one prefix: together they are the whole.
for component in generator desktop data cmake toolkit doc; do
    install --prefix "$work/$component" --component "$component"
    files "$work/$component" >"$work/files-$component"
done
same generatorHasTheProgramsAlone "$(printf '%s\n' bin/codeGen bin/qxgen libexec/quorvex-codegen/codeGen)" \
    "$(cat "$work/files-generator")"
same dataIsThatOfTheRepository \
    "$(files "$repository/data" | grep -v customCodeGenConfig | sed 's,^,share/quorvex-codegen/data/,')" \
    "$(cat "$work/files-data")"
check packageStandsWhereCMakeLooks test -e "$(echo "$work"/cmake/lib*/cmake/QuorvexCodeGen/QuorvexCodeGenConfig.cmake)"
holds toolkitHasHeaders quorvex-codegen/toolkit/include/qx/wireFormat.h "$(cat "$work/files-toolkit")"
holds toolkitHasItsLibrary quorvex-codegen/toolkit/lib/libqxToolkit.a "$(cat "$work/files-toolkit")"
holds documentsHaveThoseOfTheRepository share/doc/quorvex-codegen/docs/qxgen.md "$(cat "$work/files-doc")"
holds documentsHaveManualPages share/man/man1/qxgen-generate.1 "$(cat "$work/files-doc")"
holds desktopHasTheMenuEntry share/applications/com.quorvex.CodeGen.desktop "$(cat "$work/files-desktop")"
holds desktopHasCompletions share/bash-completion/completions/qxgen "$(cat "$work/files-desktop")"
dead_links() { # directory
    (cd "$1" && grep -rHo --include='*.md' '](\([^):#]*\)[#)]' . | while IFS=: read -r page link; do
        link=${link#](}
        link=${link%[#)]}
        [ -z "$link" ] || [ -e "$(dirname "$page")/$link" ] || echo "$page $link"
    done)
}
same linksOfInstalledDocumentsLeadSomewhere "" "$(dead_links "$work/doc/share/doc/quorvex-codegen")"
holds documentsHaveTheExample share/doc/quorvex-codegen/examples/cmake/CMakeLists.txt "$(cat "$work/files-doc")"
install --prefix "$prefix"
same componentsAreTheWhole "$(cat "$work"/files-* | LC_ALL=C sort)" "$(files "$prefix")"
rm -rf "$work"/{generator,desktop,data,cmake,toolkit,doc}
holds_not noFileNamesTheSourceOrThePrefix "$work" "$(grep -rlI -e "$repository" -e "$work" "$prefix" || true)"

# Moved, it finds its parts again.
moved=$work/moved
mv "$prefix" "$moved"
mkdir "$work/user"
cp "$repository/examples/cmake/models/entities.xml" "$work/user/"
cd "$work/user"
same movedQxgenFindsItsData "" "$("$moved/bin/qxgen" generate entities.xml -o out 2>&1)"
check movedQxgenGenerates test -e out/aircraftPublisherHLA.h

# One run of the real program, which reads and writes in the run directory of the user.
export HOME=$work/user/home
"$moved/bin/codeGen" -G -A -F entities.xml -O "of the window" >"$log" 2>&1 || fail batchRun "$(cat "$log")"
check windowProgramGenerates test -e 'of the window/cpp\aircraftPublisherHLA.h'
holds_not windowProgramFindsItsData "Initializer" "$(cat "$log")"
check configurationIsWrittenForTheUser test -f "$HOME/.config/quorvex-codegen/customCodeGenConfig.xml"
check sharedDataStaysAsItIs test ! -e "$moved/share/quorvex-codegen/data/config/customCodeGenConfig.xml"
mv "$moved" "$prefix"

# Taken away: what others have put there stays, with the directories that they need.
uninstall() {
    cmake -DMANIFESTS="$build" -P "$repository/cmake/uninstall.cmake" >"$log" 2>&1 || fail uninstall "$(cat "$log")"
}
mkdir -p "$prefix/share/quorvex-codegen/data/templates/mine" "$prefix/empty"
touch "$prefix/bin/other" "$prefix/share/quorvex-codegen/data/templates/mine/enums.tlt"
uninstall
same uninstallLeavesFilesOfOthers "$(printf '%s\n' bin/other share/quorvex-codegen/data/templates/mine/enums.tlt)" \
    "$(files "$prefix")"
holds_not uninstallRemovesDirectoriesOfItsOwn cmake/QuorvexCodeGen "$(directories "$prefix")"
check uninstallLeavesEmptyDirectoriesOfOthers test -d "$prefix/empty"
uninstall
holds secondUninstallSaysThatThereIsNothing "nothing to remove" "$(cat "$log")"

# Staged, as packages are made; two components, of which one is installed twice.
export DESTDIR=$work/stage
for component in generator cmake cmake; do
    install --prefix /usr/local --component $component
done
check stagedStarterIsThere test -x "$DESTDIR/usr/local/bin/codeGen"
uninstall
same uninstallCountsFromTheStage "" "$(files "$DESTDIR")"
end_tests
