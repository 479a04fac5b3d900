#!/usr/bin/env bash
# Tests builds with the CMake package: the example as a newcomer builds it, what is compiled again and what is not, and
# kinds of libraries. With QX_FULL the same by make, and the example programs that are generated.
#   testPackage.sh REPOSITORY PREFIX
. "$(dirname "${BASH_SOURCE[0]}")/support.sh"
repository=$1
prefix=$2
. "$(dirname "${BASH_SOURCE[0]}")/packageProject.sh"

jobs=(--parallel 2)
port=$((20000 + $$ % 1000 * 20)) # of sixteen in a row

# The build has nothing to do, whatever the build tool says then.
nothing_to_do() { # test
    build "${jobs[@]}"
    case $log in
        *Building* | *Linking* | *Generating* | *Error*) fail "$1" "$log" ;;
        *) pass "$1" ;;
    esac
}

add_class() { # file class
    sed -i "0,/<name>HLAobjectRoot<\/name>/s//&<objectClass><name>$2<\/name><sharing>PublishSubscribe<\/sharing><\/objectClass>/" "$1"
}

# Make compares whole seconds on some file systems.
a_moment_later() {
    [ "$generator" = Ninja ] || sleep 1.1
}

test_example() {
    cp -r "$repository/examples/cmake" "$work/example $1"
    cd "$work/example $1"
    must_configure exampleConfigures
    must_build exampleBuilds "${jobs[@]}"
    holds_not exampleHasNoWarnings warning "$log"
    build/listen $port 60 >heard &
    local listener=$!
    sleep 0.5
    build/talk $port 3
    local code=0
    wait $listener || code=$?
    same listenEndsWhenTheAircraftGoes 0 "$code"
    local first=Kestrel' is here'
    same listenHearsOfTheAircraft "$(printf '%s\n' "$first" "Kestrel is gone")" "$(sed -n '1p;$p' heard)"
    holds listenHearsItsValues "Kestrel, marked K-07, is 60 m along, damage: Moderate (1)" "$(cat heard)"
    holds listenHearsWhoFires "entity 1.7 fires 3 rounds" "$(cat heard)"
    nothing_to_do secondBuildHasNothingToDo

    a_moment_later
    sed -i 's,</objectModel>,<!-- A remark. -->\n&,' models/entities.xml
    build "${jobs[@]}"
    holds commentStartsTheGenerator Generating "$log"
    same commentCompilesNothing "0 0" "$status $(compiled)"
    holds_not commentLinksNothing Linking "$log"
    nothing_to_do buildBehindACommentHasNothingToDo

    a_moment_later
    touch -c "$prefix/bin/qxgen"
    build "${jobs[@]}"
    holds newGeneratorGenerates Generating "$log"
    same newGeneratorThatWritesTheSameCompilesNothing "0 0" "$status $(compiled)"

    a_moment_later
    add_class models/weapons.xml Bunker
    build "${jobs[@]}"
    same addedClassIsBuiltInByOneBuild "0 6" "$status $(compiled)"
    holds addedClassIsPartOfTheLibrary bunkerPublisherHLA "$(ar t build/libentities.a)"
    nothing_to_do buildBehindAnAddedClassHasNothingToDo

    a_moment_later
    cp "$repository/examples/cmake/models/weapons.xml" models/
    build "${jobs[@]}"
    same removedClassCompilesNothing "0 0" "$status $(compiled)"
    holds_not removedClassLeavesTheLibrary bunker "$(ar t build/libentities.a)"
    check filesOfARemovedClassAreRemoved test ! -e build/entities_qxgen/generated/bunkerPublisherHLA.h

    a_moment_later
    echo '</broken>' >>models/weapons.xml
    build "${jobs[@]}"
    check brokenModelFailsTheBuild test "$status" != 0
    holds brokenModelIsNamed weapons.xml "$log"
}

# A build that does not run cmake again by itself, such as one for which somebody has switched that off.
test_stale_list() {
    new_project stale <<'END'
set(CMAKE_SUPPRESS_REGENERATION ON)
qx_generate_cpp(TARGET t MODELS small.xml)
END
    write_model small.xml Buoy
    must_configure staleListConfigures
    write_model small.xml Buoy Nun
    build --target t_qxgen
    check otherListThanTheConfiguredOneFails test "$status" != 0
    holds remedyForAnotherListIsTold "run cmake again. New: nunDecoderHLA.cxx" "$log"
    check nothingIsWrittenForAnotherList test ! -e build/t_qxgen/generated/buoyPublisherHLA.h
    must_configure cmakeIsRunAgain
    must_build buildGoesOnThen --target t_qxgen
    check bothClassesAreThere test -e build/t_qxgen/generated/nunPublisherHLA.h
}

# Make looks at a stamp alone, and leaves it to cmake to find that one of the files is gone.
test_removed_file() {
    new_project removed <<'END'
qx_generate_cpp(TARGET t MODELS small.xml)
END
    write_model small.xml Buoy
    must_configure removedFileConfigures
    must_build removedFileIsThereAtFirst --target t_qxgen
    rm build/t_qxgen/generated/dllExport.h
    must_configure cmakeRunsAgainWithoutTheFile
    must_build buildWithoutTheFileGoesOn --target t_qxgen
    check removedFileIsMadeAgain test -e build/t_qxgen/generated/dllExport.h
}

# Several targets, of every kind, in one project; programs in directories of their own, of which each includes headers
# that are not there when the build begins.
test_kinds() {
    new_project kinds <<'END'
set(CMAKE_CXX_FLAGS "-Wall -Wextra -Wpedantic -Werror")
qx_generate_cpp(TARGET stat TYPE STATIC MODELS small.xml)
qx_generate_cpp(TARGET shar TYPE SHARED MODELS small.xml PREFIX Sh INCLUDE_DIR heads)
set_target_properties(shar PROPERTIES CXX_VISIBILITY_PRESET hidden)
qx_generate_cpp(TARGET obj TYPE OBJECT MODELS small.xml NAMESPACE space NAME other OUT_DIR objects)
qx_generate_cpp(TARGET dis MODELS small.xml DIS SCRIPTS json)
add_subdirectory(sub)
END
    write_model small.xml Buoy
    mkdir sub
    cat >sub/CMakeLists.txt <<'END'
qx_generate_cpp(OUT_VAR files MODELS ../small.xml PREFIX Own)
add_executable(own own.cxx ${files})
target_include_directories(own PRIVATE ${files_INCLUDE_DIRS})
target_link_libraries(own PRIVATE Qx::toolkit)
foreach(kind stat shar obj disDIS)
    add_executable(use_${kind} ${kind}.cxx)
    target_link_libraries(use_${kind} PRIVATE ${kind})
endforeach()
END
    program() { # name header class
        printf '#include "%s"\n#include <qx/exerciseConn.h>\n' "$2"
        printf 'int main()\n{\n    DtExerciseConn connection("x");\n    %s buoy(&connection);\n' "$3"
        printf '    return buoy.tick() ? 0 : 1;\n}\n'
    } >"sub/$1.cxx"
    program stat buoyPublisherHLA.h DtBuoyPublisher
    program shar heads/buoyPublisherHLA.h DtShBuoyPublisher
    program obj buoyPublisherHLA.h space::DtBuoyPublisher
    program disDIS buoyPublisher.h DtBuoyPublisher
    program own buoyPublisherHLA.h DtOwnBuoyPublisher
    must_configure kindsConfigure
    must_build kindsBuild "${jobs[@]}"
    local kind
    for kind in use_stat use_shar use_obj use_disDIS own; do
        check "programRuns $kind" "build/sub/$kind"
    done
    check sharedLibraryIsOne test -e build/libshar.so
    check objectsAreWhereTheyWereWanted test -e build/objects/buoyPublisherHLA.cxx
    check scriptsAreCarriedOut test -e build/dis_qxgen/generated/model.json
    nothing_to_do secondBuildOfKindsHasNothingToDo
    build --target clean
    must_build cleanBuildBuildsAgain "${jobs[@]}" --target use_stat
}

test_examples() {
    new_project examples <<'END'
qx_generate_cpp(TARGET t MODELS small.xml EXAMPLES)
END
    write_model small.xml Buoy
    configure
    must_build generatedExamplesBuild "${jobs[@]}" --target t_examples
    check generatedExamplesAreProgramsOfTheirClass test -x build/t_qxgen/examples/Buoy/talk -a \
        -x build/t_qxgen/examples/Buoy/listen
}

test_example one
test_stale_list
test_kinds
chosen_generator=$generator
generator="Unix Makefiles"
test_removed_file
generator=$chosen_generator
if [ -n "${QX_FULL-}" ]; then
    test_examples
    generator="Unix Makefiles"
    rm -rf "${work:?}"/*
    test_example two
    test_stale_list
    test_kinds
    test_examples
fi
end_tests
