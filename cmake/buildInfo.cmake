# Writes the header OUTPUT with VERSION, the date and the revision of the build. A header that would come out the same is
# left alone, so nothing is compiled again for it.
#   cmake -DOUTPUT=buildInfo.h -DSOURCE_DIR=... -DVERSION=5.10 -P buildInfo.cmake
# The date is that of SOURCE_DATE_EPOCH when that is set. The revision is "unknown" without git, and for sources that
# are no checkout of their own.
cmake_minimum_required(VERSION 3.20)

string(TIMESTAMP date "%b %d %Y" UTC)
set(revision unknown)

find_program(GIT git)
if(GIT)
    execute_process(COMMAND ${GIT} -C ${SOURCE_DIR} rev-parse --show-prefix --short=10 HEAD
        OUTPUT_VARIABLE answer RESULT_VARIABLE failed ERROR_QUIET)
    # The first line is the way from the top of the checkout to here: empty at the top itself.
    if(NOT failed AND answer MATCHES "^\n([0-9a-f]+)\n$")
        set(revision ${CMAKE_MATCH_1})
    endif()
endif()

file(CONFIGURE OUTPUT ${OUTPUT} @ONLY CONTENT "// Written by the build.
#ifndef CODE_GEN_APP_BUILD_INFO_H
#define CODE_GEN_APP_BUILD_INFO_H

inline constexpr char theBuildVersion[] = \"@VERSION@\";
inline constexpr char theBuildDate[] = \"@date@\";
inline constexpr char theBuildRevision[] = \"@revision@\";

#endif
")
