#!/usr/bin/env bash
# Tests what the CMake package makes of the arguments of its functions, and what it says of wrong ones. Nothing is
# compiled here.
#   testPackageArguments.sh REPOSITORY PREFIX
. "$(dirname "${BASH_SOURCE[0]}")/support.sh"
prefix=$2
. "$(dirname "${BASH_SOURCE[0]}")/packageProject.sh"

keywords=$(sed -n 's/^    set(\(flags\|values\|lists\) \(.*\))$/\2/p' "$1/cmake/package/qxGenerateCpp.cmake")
same allKeywordsAreFound 20 "$(wc -w <<<"$keywords")"
for keyword in $keywords; do
    check "argumentIsTold $keyword" grep -q "^|.*\`$keyword[\` ].* |" "$1/docs/cmake.md"
done

# All arguments, of which one asks for what a shell or a list of CMake would take apart.
new_project all <<'END'
qx_generate_cpp(TARGET rpr TYPE STATIC MODELS "a model.xml" sub/second.xml NAME "My RPR" PREFIX Ab NAMESPACE ns
    INCLUDE_DIR in/side SELECT "Buoy*" "!Nun;*" "$(echo) Buoy" SETTINGS firstPduKind=7 "logFileName=a;b"
    SCRIPTS json own.txt TEMPLATE_DIRS templates OUT_DIR out DEPENDS CMakeLists.txt DIS EXAMPLES WERROR WITH_MANAGEMENT)
END
mkdir sub templates
write_model "a model.xml" Buoy
write_model sub/second.xml Nun
touch own.txt
configure
same argumentsGoIntoAFileAsTheyAre "$(printf '%s\n' "$PWD/a model.xml" "$PWD/sub/second.xml" '--name=My RPR' \
    --prefix=Ab --namespace=ns --include-dir=in/side '--select=Buoy*' '--select=!Nun;*' '--select=$(echo) Buoy' \
    --set=firstPduKind=7 '--set=logFileName=a;b' --script=json "--script=$PWD/own.txt" "--template-dir=$PWD/templates" \
    --script=cpp --dis --examples --with-management)" "$(cat build/rpr_qxgen/arguments)"
holds whatQxgenSaysIsShown 'The key "logFileName" cannot be set' "${log/the key/The key}"

# Without any of them.
new_project few <<'END'
qx_generate_cpp(TARGET few MODELS small.xml)
get_target_property(type few TYPE)
get_target_property(sources few SOURCES)
list(FILTER sources INCLUDE REGEX "cxx$")
list(TRANSFORM sources REPLACE ".*/" "")
get_target_property(links few LINK_LIBRARIES)
message("<${type}> <${sources}> <${links}>")
END
write_model small.xml Buoy
must_configure fewArgumentsAreEnough
holds libraryHasTheSourcesThatAreListed "<STATIC_LIBRARY> <buoyDecoderHLA.cxx;buoyEncoderHLA.cxx;buoyPublisherHLA.cxx;\
buoyStateRepository.cxx;reflectedBuoyHLA.cxx;reflectedBuoyListHLA.cxx> <Qx::toolkit>" "$log"
check nothingIsWrittenByCMake test ! -e build/few_qxgen/generated
configure -DBUILD_SHARED_LIBS=ON
holds kindOfLibrariesOfTheProjectCounts "<SHARED_LIBRARY>" "$log"

# Components that there are, and one that there is not.
new_project components <<'END'
foreach(components IN ITEMS "generator;toolkit" "nothing")
    find_package(QuorvexCodeGen CONFIG QUIET COMPONENTS ${components})
    if(QuorvexCodeGen_FOUND)
        message("found <${components}>")
    else()
        message("not found <${components}>")
    endif()
endforeach()
END
configure
holds componentsThatThereAreAreFound $'\n''found <generator;toolkit>' "$log"
holds componentThatThereIsNotIsNotFound "not found <nothing>" "$log"

# A project file brings model and selection, here that of a directory of headers.
new_project project <<'END'
qx_generate_cpp(TARGET p PROJECT sub/p.qxproj SETTINGS includeName=heads)
get_target_property(directories p INTERFACE_INCLUDE_DIRECTORIES)
message("<${directories}>")
END
mkdir sub
write_model sub/small.xml Buoy
cat >sub/p.qxproj <<'END'
<?xml version="1.0"?>
<project><foms><fom name="small.xml" location=""/></foms></project>
END
configure
holds headersOfASettingAreFound "generated/heads" "$log"

# DIS makes a second library.
new_project dis <<'END'
qx_generate_cpp(TARGET two MODELS small.xml DIS)
foreach(target two twoDIS)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "cxx$")
    list(TRANSFORM sources REPLACE ".*/" "")
    get_target_property(definitions ${target} INTERFACE_COMPILE_DEFINITIONS)
    message("${target} <${sources}> <${definitions}>")
endforeach()
END
write_model small.xml Buoy
must_configure disMakesTwoLibraries
holds firstLibraryIsForHla "two <buoyDecoderHLA.cxx;buoyEncoderHLA.cxx;buoyPublisherHLA.cxx;buoyStateRepository.cxx;\
reflectedBuoyHLA.cxx;reflectedBuoyListHLA.cxx> <definitions-NOTFOUND>" "$log"
holds secondLibraryIsForDis "twoDIS <buoyDecoderDIS.cxx;buoyEncoderDIS.cxx;buoyPdu.cxx;buoyPublisherDIS.cxx;\
buoyStateRepository.cxx;reflectedBuoyDIS.cxx;reflectedBuoyListDIS.cxx> <QX_DIS>" "$log"

# What is wrong is told, each by the end of its line.
new_project wrong <<'END'
add_library(taken INTERFACE)
include(call.cmake)
END
write_model small.xml Buoy
printf '<objectModel xmlns="http://standards.ieee.org/IEEE1516-2010">\n</broken>\n' >broken.xml
refused() { # test text call
    echo "$3" >call.cmake
    configure
    # A message is broken into lines by CMake.
    if [ "$status" = 0 ]; then fail "$1" "cmake goes on"; else holds "$1" "$2" "$(tr -s ' \n' ' ' <<<"$log")"; fi
}
refused unknownArgument "there is no argument FOO." 'qx_generate_cpp(FOO TARGET t MODELS small.xml)'
refused missingValue "no value stands behind NAME." 'qx_generate_cpp(TARGET t MODELS small.xml NAME)'
refused noTarget "one of TARGET and OUT_VAR has to be given." 'qx_generate_cpp(MODELS small.xml)'
refused targetAndVariable "one of TARGET and OUT_VAR" 'qx_generate_cpp(TARGET t OUT_VAR v MODELS small.xml)'
refused typeWithoutLibrary "TYPE and TOOLKIT have no meaning" 'qx_generate_cpp(OUT_VAR v TYPE SHARED MODELS small.xml)'
refused noModel "qx_generate_cpp(t): no model is given" 'qx_generate_cpp(TARGET t)'
refused unknownType "TYPE is STATIC, SHARED or OBJECT, not MODULE." \
    'qx_generate_cpp(TARGET t TYPE MODULE MODELS small.xml)'
refused takenName "there is a target of this name already." 'qx_generate_cpp(TARGET taken MODELS small.xml)'
refused bracketInName "takes no brackets" 'qx_generate_cpp(TARGET t NAME "a[b" MODELS small.xml)'
refused lineFeedInArgument "a line feed" 'qx_generate_cpp(TARGET t SELECT "a
--examples" MODELS small.xml)'
refused missingModel "qxgen: error: there is no model gone.xml" 'qx_generate_cpp(TARGET t MODELS gone.xml)'
refused brokenModelIsToldWithItsLine "broken.xml:2:" 'qx_generate_cpp(TARGET t MODELS broken.xml)'
refused patternWithoutClass 'qxgen: error: no class matches "Boy". Did you mean Buoy?' \
    'qx_generate_cpp(TARGET t MODELS small.xml SELECT Boy)'
refused oneDirectoryForTwo "is that of another target." 'qx_generate_cpp(TARGET t MODELS small.xml OUT_DIR out)
qx_generate_cpp(TARGET u MODELS small.xml OUT_DIR ./out/)'
refused unknownToolkit "TOOLKIT names kit, which is no target here." \
    'qx_generate_cpp(TARGET t MODELS small.xml TOOLKIT kit)'
refused modelCannotBeCheckedYet "qx_check_model() adds a test that runs qxgen check" 'qx_check_model(TARGET t)'
holds remedyOfTheCheckIsTold "Leave the call out." "$log"

# The toolkit.
new_project kit <<'END'
add_library(kit INTERFACE)
qx_generate_cpp(TARGET named MODELS small.xml TOOLKIT kit)
qx_generate_cpp(TARGET found MODELS small.xml)
foreach(target named found)
    get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
    message("${target} <${links}>")
endforeach()
get_target_property(type ${links} TYPE)
message("<${type}>")
END
write_model small.xml Buoy
configure
holds targetMayBeNamed "named <kit>" "$log"
holds standInIsTheLastResort "found <Qx::toolkit>" "$log"
configure -DQX_DIR="$1/toolkit"
holds sourcesOfQxDirBecomeALibrary "<STATIC_LIBRARY>" "$log"
configure -DQX_DIR="$(echo "$prefix"/lib*/quorvex-codegen/toolkit)"
holds libraryOfQxDirIsTaken "<INTERFACE_LIBRARY>" "$log"
rm -r build
QX_DIR=$1/toolkit configure
holds qxDirMayComeFromTheEnvironment "<STATIC_LIBRARY>" "$log"
configure -DQX_DIR="$work"
holds wrongQxDirIsTold "QX_DIR does not name the directory of the toolkit" "$log"

# The package and its program.
new_project package <<'END'
END
must_configure packageIsFound
sed -i 's/5.10/6/' CMakeLists.txt
configure
holds otherMajorVersionIsNotTaken "version: 5.10" "$log"
sed -i 's/ 6 / 5.9 /' CMakeLists.txt
must_configure olderVersionWillDo
mkdir "$work/foreign"
cp -r "$prefix"/lib* "$work/foreign/" # without bin
cat >>CMakeLists.txt <<'END'
qx_generate_cpp(TARGET t MODELS small.xml)
END
write_model small.xml Buoy
here=$prefix
prefix=$work/foreign
rm -r build
configure
holds missingProgramIsTold "Install the component generator, or name a qxgen by QuorvexCodeGen_QXGEN." \
    "$(tr -s ' \n' ' ' <<<"$log")"
# For another machine: the program of this one, and a toolkit of its own.
cat >other.cmake <<'END'
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR other)
END
cross=(-DCMAKE_TOOLCHAIN_FILE=other.cmake -DQuorvexCodeGen_QXGEN="$here/bin/qxgen")
rm -r build
configure "${cross[@]}"
holds crossCompilingNeedsAToolkit "There is no toolkit to compile against." "$log"
must_configure programOfThisMachineMayBeNamed "${cross[@]}" -DQX_DIR="$1/toolkit"
must_build programOfThisMachineGenerates --target t_qxgen
prefix=$here
configure "${cross[@]}" -DQX_DIR=
holds standInOfThisMachineIsNotForAnother "There is no toolkit to compile against." "$log"

# What the generator is told when it runs; projects with Qt set AUTOMOC for all targets.
new_project told <<'END'
set(CMAKE_AUTOMOC ON)
qx_generate_cpp(TARGET lax MODELS "a%b.xml" TEMPLATE_DIRS own)
qx_generate_cpp(TARGET strict MODELS "a%b.xml" WERROR)
END
write_model "a%b.xml" Buoy
mkdir own
must_configure warningsConfigure
holds_not librariesNeedNoQt AUTOMOC "$log"
must_build warningsAreNoErrors --target lax_qxgen
holds warningsAreShown "[no-identifier]" "$log"
build --target strict_qxgen
check warningsAreErrorsWhenThatIsWanted test "$status" != 0
check nothingIsWrittenThen test ! -e build/strict_qxgen/generated/dllExport.h
sed 's,^#endif$,// Of my own.\n&,' "$1/data/templates/dllExport.tlt" >own/dllExport.tlt
must_build newTemplateIsTaken --target lax_qxgen
holds newTemplateShows "Of my own." "$(cat build/lax_qxgen/generated/dllExport.h)"
rm own/dllExport.tlt
must_build removedTemplateIsNoFault --target lax_qxgen
holds_not removedTemplateIsGone "Of my own." "$(cat build/lax_qxgen/generated/dllExport.h)"

# A project that asks for an old CMake has old policies; the package has its own.
new_project old <<'END'
qx_generate_cpp(TARGET t MODELS small.xml SELECT Buoy DEPENDS further.txt)
END
write_model small.xml Buoy
touch further.txt
sed -i 's/VERSION 3.20/VERSION 3.5/' CMakeLists.txt
must_configure oldProjectConfigures
holds_not oldProjectIsNotWarned Policy "$log"
must_build oldProjectGenerates --target t_qxgen
build --target t_qxgen
holds_not oldProjectComparesRight Generating "$log"
sed -i 's,</objectModel>,<!-- A remark. -->&,' small.xml
build --target t_qxgen
holds oldProjectLearnsOfChanges Generating "$log"
touch further.txt
build --target t_qxgen
holds furtherDependencyStartsTheGenerator Generating "$log"

# Names with blanks and marks, by either build tool; the second build has nothing to do.
odd="it is (1) ä,b=c@d"
for generator in Ninja "Unix Makefiles"; do
    new_project "$odd $generator" <<'END'
qx_generate_cpp(TARGET t MODELS "-a model (1).xml" SELECT * "!Nu?" OUT_DIR "the output")
END
    write_model "-a model (1).xml" Buoy Nun
    configure
    must_build oddNamesAreTaken --target t_qxgen
    build --target t_qxgen
    holds_not oddNamesAreComparedRight "Generating" "$log"
    check outputDirectoryIsBelowTheBuild test -e "build/the output/buoyPublisherHLA.h"
    check patternsTakeClassesAway test ! -e "build/the output/nunPublisherHLA.h"
done
end_tests
